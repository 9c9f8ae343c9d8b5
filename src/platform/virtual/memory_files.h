// A file system in memory, for tests. Paths as in the port: absolute, "/" between folders.
//
// Writing or copying into a folder that does not exist, or that is read-only, fails, as on a real disk. A
// full disk refuses every write and leaves the old content; reading, removing and looking go on. "/" exists
// from the start. Nobody here knows the time: a file's stamps are kFreshStamps until some are put back, and a
// write keeps only its mode.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace quorrin {

class MemoryFiles : public Files {
  public:
    bool fileExists(const std::string& path) override { return files_.count(path) != 0; }
    bool folderExists(const std::string& path) override;
    std::optional<std::string> read(const std::string& path) override;
    bool writeWhole(const std::string& path, const std::string& content) override;
    bool writeVolatile(const std::string& path, std::string_view content) override;
    bool remove(const std::string& path) override;
    bool createFolder(const std::string& path) override;
    bool copy(const std::string& from, const std::string& to) override;
    std::vector<std::string> filesIn(const std::string& folder) override;
    std::optional<FileStamps> stampsOf(const std::string& path) override;
    bool putBackStamps(const std::string& path, const FileStamps& stamps) override;

    static constexpr FileStamps kFreshStamps = {0, 0, 0644};

    // Puts a file there, folders included, whatever the disk says.
    void put(const std::string& path, const std::string& content);
    // Adds to a file that there is; refused by a full disk.
    bool append(const std::string& path, std::string_view bytes);
    void setDiskFull(bool full) { full_ = full; }
    // Nothing is created, replaced or removed right inside that folder from now on.
    void setReadOnly(const std::string& folder) { readOnly_.insert(folder); }

  private:
    void makeFolders(const std::string& path);
    bool mayChange(const std::string& folder) const { return !full_ && readOnly_.count(folder) == 0; }

    std::map<std::string, std::string> files_;
    std::map<std::string, FileStamps> stamps_;
    std::set<std::string> folders_;
    std::set<std::string> readOnly_;
    bool full_ = false;
};

}  // namespace quorrin
