#include "platform/host/posix_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/host/file_handle.h"

namespace quorrin {

namespace {

bool hasKind(const std::string& path, mode_t kind) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == kind;
}

std::string folderOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

// What stands at a path before it is replaced.
struct Place {
    std::string path;  // where it leads once links are followed
    mode_t permissions;
};

mode_t freshPermissions() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

Place placeOf(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return {path, freshPermissions()};
    if (!S_ISLNK(status.st_mode)) return {path, status.st_mode & 07777};
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    const std::string target = real ? real.get() : path;
    return {target, ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : freshPermissions()};
}

bool writeAll(int descriptor, std::string_view content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t step = ::write(descriptor, content.data() + done, content.size() - done);
        if (step < 0 && errno == EINTR) continue;
        if (step <= 0) return false;
        done += static_cast<std::size_t>(step);
    }
    return true;
}

std::int64_t nanoseconds(const timespec& time) {
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

timespec timeOf(std::int64_t ns) {
    constexpr std::int64_t kSecond = 1'000'000'000;
    const std::int64_t rest = (ns % kSecond + kSecond) % kSecond;
    return {static_cast<time_t>((ns - rest) / kSecond), static_cast<long>(rest)};
}

void bringFolderToDisk(const std::string& folder) {
    const FileHandle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.valid()) ::fsync(handle.get());
}

}  // namespace

bool PosixFiles::fileExists(const std::string& path) {
    return hasKind(path, S_IFREG);
}

bool PosixFiles::folderExists(const std::string& path) {
    return hasKind(path, S_IFDIR);
}

std::optional<std::string> PosixFiles::read(const std::string& path) {
    const FileHandle handle(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!handle.valid()) return std::nullopt;
    std::string content;
    char piece[65536];
    for (;;) {
        const ssize_t got = ::read(handle.get(), piece, sizeof piece);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return std::nullopt;
        if (got == 0) return content;
        content.append(piece, static_cast<std::size_t>(got));
    }
}

bool PosixFiles::writeWhole(const std::string& path, const std::string& content) {
    return replaceOrTell(path, content, Reach::disk);
}

bool PosixFiles::writeVolatile(const std::string& path, std::string_view content) {
    return replaceOrTell(path, content, Reach::reader);
}

bool PosixFiles::replaceOrTell(const std::string& path, std::string_view content, Reach reach) {
    if (replace(path, content, reach)) return true;
    if (onWriteFailed) onWriteFailed(path);
    return false;
}

bool PosixFiles::replace(const std::string& path, std::string_view content, Reach reach) {
    const Place target = placeOf(path);
    std::string temporary = target.path + ".XXXXXX";
    FileHandle handle(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!handle.valid()) return false;
    const bool written = writeAll(handle.get(), content) && ::fchmod(handle.get(), target.permissions) == 0 &&
                         (reach == Reach::reader || ::fsync(handle.get()) == 0);
    const bool closed = handle.closeNow();
    if (!written || !closed || ::rename(temporary.c_str(), target.path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    if (reach == Reach::disk) bringFolderToDisk(folderOf(target.path));
    return true;
}

bool PosixFiles::remove(const std::string& path) {
    return hasKind(path, S_IFREG) && ::unlink(path.c_str()) == 0;
}

bool PosixFiles::createFolder(const std::string& path) {
    for (std::size_t at = 1; at <= path.size(); ++at) {
        if (at != path.size() && path[at] != '/') continue;
        const std::string part = path.substr(0, at);
        if (::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST && !hasKind(part, S_IFDIR)) return false;
    }
    return folderExists(path);
}

bool PosixFiles::copy(const std::string& from, const std::string& to) {
    const auto content = read(from);
    return content && writeWhole(to, *content);
}

std::vector<std::string> PosixFiles::filesIn(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> handle(::opendir(folder.c_str()),
                                                     [](DIR* dir) { return ::closedir(dir); });
    std::vector<std::string> names;
    if (!handle) return names;
    while (const dirent* entry = ::readdir(handle.get())) {
        // Most file systems tell the kind along with the name; only a link has to be followed.
        const bool told = entry->d_type != DT_UNKNOWN && entry->d_type != DT_LNK;
        const bool file = told ? entry->d_type == DT_REG : hasKind(folder + "/" + entry->d_name, S_IFREG);
        if (file) names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<FileStamps> PosixFiles::stampsOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileStamps{nanoseconds(status.st_atim), nanoseconds(status.st_mtim), status.st_mode & 07777};
}

bool PosixFiles::putBackStamps(const std::string& path, const FileStamps& stamps) {
    FileHandle handle(::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
    if (!handle.valid() || ::flock(handle.get(), LOCK_EX | LOCK_NB) != 0) return false;
    const timespec times[2] = {timeOf(stamps.accessNs), timeOf(stamps.writeNs)};
    const bool timesBack = ::futimens(handle.get(), times) == 0;
    const bool closed = handle.closeNow();
    return ::chmod(path.c_str(), stamps.mode) == 0 && timesBack && closed;
}

}  // namespace quorrin
