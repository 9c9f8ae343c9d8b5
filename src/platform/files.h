// What the station asks of a file system. Paths are absolute, "/" between folders, UTF-8.
//
// Nothing here throws: a failure is a false or an empty result, and the caller decides.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorrin {

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
    virtual bool remove(const std::string& path) = 0;
    // Creates the folder and those above it.
    virtual bool createFolder(const std::string& path) = 0;
    virtual bool copy(const std::string& from, const std::string& to) = 0;
    // Names of the plain files in a folder, sorted; empty when there is no such folder.
    virtual std::vector<std::string> filesIn(const std::string& folder) = 0;
};

}  // namespace quorrin
