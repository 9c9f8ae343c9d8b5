// What the station asks of a file system. Paths are absolute, "/" between folders, UTF-8.
//
// Nothing here throws: a failure is a false or an empty result, and the caller decides.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorrin {

// What is kept of a file beside its content. A file's creation is not among it: no system call can set it.
struct FileStamps {
    std::int64_t accessNs = 0;  // last read, nanoseconds since 1970
    std::int64_t writeNs = 0;   // last write
    std::uint32_t mode = 0;     // permission bits

    bool operator==(const FileStamps&) const = default;
};

class Files {
  public:
    virtual ~Files() = default;

    virtual bool fileExists(const std::string& path) = 0;
    virtual bool folderExists(const std::string& path) = 0;
    // The whole file; empty when it cannot be read.
    virtual std::optional<std::string> read(const std::string& path) = 0;
    // Replaces the file as a whole: after a crash or on a full disk the old content or the new one is there,
    // never a part of either.
    virtual bool writeWhole(const std::string& path, const std::string& content) = 0;
    // The same towards every reader and on a full disk, but nobody waits for the disk: a machine that loses
    // its power may lose the content. For files that are soon replaced again.
    virtual bool writeVolatile(const std::string& path, std::string_view content) = 0;
    virtual bool remove(const std::string& path) = 0;
    // Creates the folder and those above it.
    virtual bool createFolder(const std::string& path) = 0;
    virtual bool copy(const std::string& from, const std::string& to) = 0;
    // Names of the plain files in a folder, sorted; empty when there is no such folder.
    virtual std::vector<std::string> filesIn(const std::string& folder) = 0;
    // Empty when there is no such file.
    virtual std::optional<FileStamps> stampsOf(const std::string& path) = 0;
    // Opens the file for writing while nobody else may write it, puts the times back, closes it, and puts the
    // permissions back. False, with nothing changed, when it cannot be opened so.
    virtual bool putBackStamps(const std::string& path, const FileStamps& stamps) = 0;
};

}  // namespace quorrin
