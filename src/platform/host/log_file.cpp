#include "platform/host/log_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdio>

#include "platform/host/file_handle.h"

namespace quorrin {

namespace {

constexpr off_t kLongest = 1024 * 1024;

void write(int descriptor, const std::string& text) {
    [[maybe_unused]] const ssize_t written = ::write(descriptor, text.data(), text.size());
}

}  // namespace

void LogFile::line(const std::string& text) {
    const CivilTime now = clock_.wallTime();
    char time[32];
    std::snprintf(time, sizeof time, "%s %02d:%02d:%02d ", isoDate(now).c_str(), now.hour, now.minute,
                  now.second);
    const std::string whole = time + text + "\n";
    write(STDERR_FILENO, whole);

    struct stat status {};
    if (::stat(path_.c_str(), &status) == 0 && status.st_size > kLongest)
        std::rename(path_.c_str(), (path_ + ".1").c_str());
    const FileHandle file(::open(path_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600));
    if (file.valid()) write(file.get(), whole);
}

}  // namespace quorrin
