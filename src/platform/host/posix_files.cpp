#include "platform/host/posix_files.h"

#include <dirent.h>
#include <fcntl.h>
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

// Where a path leads once links are followed; the path itself when nothing is there yet.
std::string followed(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real ? std::string(real.get()) : path;
}

bool writeAll(int descriptor, const std::string& content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t step = ::write(descriptor, content.data() + done, content.size() - done);
        if (step < 0 && errno == EINTR) continue;
        if (step <= 0) return false;
        done += static_cast<std::size_t>(step);
    }
    return true;
}

mode_t permissionsFor(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) return status.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
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
    if (replace(path, content)) return true;
    if (onWriteFailed) onWriteFailed(path);
    return false;
}

bool PosixFiles::replace(const std::string& path, const std::string& content) {
    const std::string target = followed(path);
    std::string temporary = target + ".XXXXXX";
    FileHandle handle(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!handle.valid()) return false;
    const bool written = writeAll(handle.get(), content) &&
                         ::fchmod(handle.get(), permissionsFor(target)) == 0 && ::fsync(handle.get()) == 0;
    const bool closed = handle.closeNow();
    if (!written || !closed || ::rename(temporary.c_str(), target.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    bringFolderToDisk(folderOf(target));
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
        if (hasKind(folder + "/" + entry->d_name, S_IFREG)) names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace quorrin
