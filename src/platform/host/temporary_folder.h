// A fresh folder for one run of a program, and the absolute form of a path.
#pragma once

#include <string>

namespace quorrin {

// Made under $TMPDIR (or /tmp), readable by the user alone; removed with all that is in it when this goes.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // Absolute; empty when it could not be made.
    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

// `path` itself where it begins with "/", else under the current folder; "." and ".." are left as they are,
// trailing "/" are dropped.
std::string absolutePath(const std::string& path);

}  // namespace quorrin
