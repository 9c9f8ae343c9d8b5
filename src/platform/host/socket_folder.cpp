#include "platform/host/socket_folder.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "platform/host/file_handle.h"

namespace quorrin {

namespace {

// Room that is kept for "/" and a name.
constexpr std::size_t kNameRoom = 24;

// FNV-1a: the same on every machine and in every program of ours.
std::string hashOf(const std::string& text) {
    std::uint64_t hash = 14695981039346656037ULL;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
    return digits;
}

bool makeOwn(const std::string& folder) {
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) return false;
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid() &&
           (status.st_mode & 0077) == 0;
}

}  // namespace

std::string socketFolder(const std::string& runFolder) {
    if (runFolder.size() + kNameRoom < sizeof(sockaddr_un::sun_path)) return runFolder;
    const std::string folder = "/tmp/quorrin-" + std::to_string(::getuid()) + "-" + hashOf(runFolder);
    return makeOwn(folder) ? folder : std::string();
}

void removeDeadSocket(const std::string& path) {
    struct stat status {};
    sockaddr_un address{};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISSOCK(status.st_mode)) return;
    if (path.size() >= sizeof address.sun_path) return;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const FileHandle probe(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!probe.valid()) return;
    if (::connect(probe.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return;
    if (errno == ECONNREFUSED) ::unlink(path.c_str());
}

}  // namespace quorrin
