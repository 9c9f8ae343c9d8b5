// A file that only grows: for logs and recordings, which must not keep all they have written in memory.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quorrin {

class AppendFile {
  public:
    virtual ~AppendFile() = default;
    // False when it could not be written; then nothing more should be.
    virtual bool append(std::string_view bytes) = 0;
};

// Makes an empty file in the place of the one there is; null when it cannot.
using CreateAppendFile = std::function<std::unique_ptr<AppendFile>(const std::string& path)>;

}  // namespace quorrin
