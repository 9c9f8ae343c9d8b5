#include "platform/host/lock_window.h"

#include <fcntl.h>

namespace quorrin {

namespace {

constexpr off_t kShownByte = 0;
constexpr off_t kLivingByte = 1;

struct flock lockOf(short type, off_t byte) {
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = byte;
    lock.l_len = 1;
    return lock;
}

bool tryLock(const FileHandle& file, off_t byte) {
    const struct flock lock = lockOf(F_WRLCK, byte);
    return ::fcntl(file.get(), F_SETLK, &lock) == 0;
}

pid_t holder(const FileHandle& file, off_t byte) {
    struct flock lock = lockOf(F_WRLCK, byte);
    if (!file.valid() || ::fcntl(file.get(), F_GETLK, &lock) != 0 || lock.l_type == F_UNLCK) return 0;
    return lock.l_pid;
}

std::string pathOf(const std::string& runFolder, const std::string& title) {
    return runFolder + "/" + title + ".lock";
}

}  // namespace

LockWindow::LockWindow(const std::string& runFolder, const std::string& title)
    : path_(pathOf(runFolder, title)) {}

WindowClaim LockWindow::claim() {
    if (!file_.valid()) file_ = FileHandle(::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!file_.valid() || !tryLock(file_, kLivingByte))
        return holder(file_, kShownByte) != 0 ? WindowClaim::otherAlive : WindowClaim::otherClosing;
    tryLock(file_, kShownByte);
    return WindowClaim::taken;
}

void LockWindow::hide() {
    const struct flock lock = lockOf(F_UNLCK, kShownByte);
    if (file_.valid()) ::fcntl(file_.get(), F_SETLK, &lock);
}

pid_t windowHolder(const std::string& runFolder, const std::string& title) {
    const FileHandle file(::open(pathOf(runFolder, title).c_str(), O_RDWR | O_CLOEXEC));
    return holder(file, kShownByte);
}

}  // namespace quorrin
