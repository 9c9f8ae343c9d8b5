#include "platform/host/posix_append_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace quorrin {

namespace {

class PosixAppendFile : public AppendFile {
  public:
    explicit PosixAppendFile(int file) : file_(file) {}
    ~PosixAppendFile() override { ::close(file_); }
    PosixAppendFile(const PosixAppendFile&) = delete;
    PosixAppendFile& operator=(const PosixAppendFile&) = delete;

    bool append(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

  private:
    int file_;
};

}  // namespace

std::unique_ptr<AppendFile> createPosixAppendFile(const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0) return nullptr;
    return std::make_unique<PosixAppendFile>(file);
}

}  // namespace quorrin
