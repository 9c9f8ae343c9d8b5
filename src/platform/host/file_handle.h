// A POSIX file descriptor that is closed with its owner. -1 is none. No errors of its own.
#pragma once

#include <unistd.h>

#include <utility>

namespace quorrin {

class FileHandle {
  public:
    FileHandle() = default;
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
    FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileHandle() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }

    bool valid() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }
    // Closes now; false when the machine reports that what was written may be lost.
    bool closeNow() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

  private:
    int descriptor_ = -1;
};

}  // namespace quorrin
