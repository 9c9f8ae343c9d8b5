// The files of a POSIX machine.
//
// writeWhole() writes a temporary file in the same folder, brings it to the disk, renames it over the old one
// and brings the folder to the disk: a crash or a full disk leaves the old content or the new one. A link is
// written through, the old file's permissions stay. writeVolatile() does the same and leaves it to the
// machine when the bytes reach the disk. Folders that are created are the user's own (0700). Stamps: access
// and write time to the nanosecond and the twelve mode bits; the lock that keeps other writers away is
// flock()'s, which binds those who ask for it.
#pragma once

#include <functional>

#include "platform/files.h"

namespace quorrin {

class PosixFiles : public Files {
  public:
    bool fileExists(const std::string& path) override;
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

    // Told of each file that could not be written; the caller may not look at the result.
    std::function<void(const std::string& path)> onWriteFailed;

  private:
    enum class Reach { reader, disk };
    bool replace(const std::string& path, std::string_view content, Reach reach);
    bool replaceOrTell(const std::string& path, std::string_view content, Reach reach);
};

}  // namespace quorrin
