#include "platform/host/tcp_calls.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>

namespace quorrin {

namespace {

constexpr int kBacklog = 64;
// Of the machine's own buffer, which else grows to megabytes for a client that never reads.
constexpr int kMachineSendBytes = 128 * 1024;

void setOption(const FileHandle& socket, int level, int option, int value) {
    ::setsockopt(socket.get(), level, option, &value, sizeof value);
}

bool noneLeft(int error) {
    return error == EMFILE || error == ENFILE || error == ENOBUFS || error == ENOMEM;
}

int portOf(int descriptor) {
    sockaddr_in own{};
    socklen_t length = sizeof own;
    if (::getsockname(descriptor, reinterpret_cast<sockaddr*>(&own), &length) != 0) return 0;
    return ntohs(own.sin_port);
}

}  // namespace

FileHandle listenTcp(int port, std::string& error) {
    FileHandle socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_ANY);
    place.sin_port = htons(static_cast<std::uint16_t>(port));
    if (socket.valid()) setOption(socket, SOL_SOCKET, SO_REUSEADDR, 1);
    if (socket.valid() &&
        ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
        ::listen(socket.get(), kBacklog) == 0)
        return socket;
    const int reason = errno;
    const std::string name = "port " + std::to_string(port);
    error = reason == EADDRINUSE ? name + " is in use"
                                 : name + " cannot be listened on: " + std::strerror(reason);
    return {};
}

TcpAccept acceptTcp(const FileHandle& listener, TcpCall& call) {
    sockaddr_in peer{};
    socklen_t length = sizeof peer;
    FileHandle socket(
        ::accept4(listener.get(), reinterpret_cast<sockaddr*>(&peer), &length, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!socket.valid()) {
        if (noneLeft(errno)) return TcpAccept::noDescriptors;
        // Whoever was there has gone again, or the network has a fault of its own that passes.
        return errno == EBADF || errno == EINVAL || errno == ENOTSOCK ? TcpAccept::broken : TcpAccept::nobody;
    }
    setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1);
    setOption(socket, SOL_SOCKET, SO_SNDBUF, kMachineSendBytes);
    char text[INET_ADDRSTRLEN] = "";
    ::inet_ntop(AF_INET, &peer.sin_addr, text, sizeof text);
    call.ip = text;
    call.port = ntohs(peer.sin_port);
    call.localPort = portOf(socket.get());
    call.socket = std::move(socket);
    return TcpAccept::call;
}

TcpResult receiveTcp(const FileHandle& socket, std::size_t atMost, std::string& bytes) {
    const std::size_t before = bytes.size();
    bytes.resize(before + atMost);
    const ssize_t got = ::recv(socket.get(), bytes.data() + before, atMost, 0);
    const int reason = errno;
    bytes.resize(before + (got > 0 ? static_cast<std::size_t>(got) : 0));
    if (got > 0) return TcpResult::some;
    if (got == 0) return TcpResult::ended;
    return reason == EAGAIN || reason == EINTR ? TcpResult::later : TcpResult::broken;
}

TcpResult sendTcp(const FileHandle& socket, std::string_view& bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        // A reset is told as such, once; EPIPE is what is left where the peer's close came before it.
        if (sent < 0 && errno == EPIPE) return TcpResult::ended;
        if (sent < 0) return errno == EAGAIN ? TcpResult::later : TcpResult::broken;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return TcpResult::some;
}

FileHandle spareDescriptor() {
    return FileHandle(::open("/dev/null", O_RDONLY | O_CLOEXEC));
}

}  // namespace quorrin
