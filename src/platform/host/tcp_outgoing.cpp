#include "platform/host/tcp_outgoing.h"

#include <arpa/inet.h>
#include <linux/sockios.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>

namespace quorrin {

namespace {

constexpr int kUnansweredMs = 10'000;
constexpr int kIdleSeconds = 5;
constexpr int kProbeSeconds = 2;
constexpr int kProbes = 3;

void setOption(const FileHandle& socket, int level, int option, int value) {
    ::setsockopt(socket.get(), level, option, &value, sizeof value);
}

// Small commands go at once, and a pulled cable is noticed.
void prepare(const FileHandle& socket) {
    setOption(socket, IPPROTO_TCP, TCP_NODELAY, 1);
    setOption(socket, IPPROTO_TCP, TCP_USER_TIMEOUT, kUnansweredMs);
    setOption(socket, SOL_SOCKET, SO_KEEPALIVE, 1);
    setOption(socket, IPPROTO_TCP, TCP_KEEPIDLE, kIdleSeconds);
    setOption(socket, IPPROTO_TCP, TCP_KEEPINTVL, kProbeSeconds);
    setOption(socket, IPPROTO_TCP, TCP_KEEPCNT, kProbes);
}

bool placeOf(const std::string& address, int port, sockaddr_in& place) {
    place = {};
    place.sin_family = AF_INET;
    place.sin_port = htons(static_cast<std::uint16_t>(port));
    return ::inet_pton(AF_INET, address.c_str(), &place.sin_addr) == 1;
}

}  // namespace

bool isAddress(const std::string& text) {
    sockaddr_in place;
    return placeOf(text, 0, place);
}

FileHandle connectTcp(const std::string& address, int port, std::string& error) {
    sockaddr_in place;
    if (!placeOf(address, port, place)) {
        error = "\"" + address + "\" is no address";
        return {};
    }
    FileHandle socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (socket.valid()) prepare(socket);
    if (socket.valid() &&
        (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 ||
         errno == EINPROGRESS))
        return socket;
    error = std::strerror(errno);
    return {};
}

std::string connectOutcome(const FileHandle& socket) {
    int reason = 0;
    socklen_t length = sizeof reason;
    if (::getsockopt(socket.get(), SOL_SOCKET, SO_ERROR, &reason, &length) != 0) reason = errno;
    return reason == 0 ? "" : std::strerror(reason);
}

void endSending(const FileHandle& socket) {
    ::shutdown(socket.get(), SHUT_WR);
}

void closeWithoutRest(FileHandle& socket) {
    // The end of sending counts as one byte.
    int unconfirmed = 0;
    if (::ioctl(socket.get(), SIOCOUTQ, &unconfirmed) == 0 && unconfirmed > 1) {
        const linger none{1, 0};
        ::setsockopt(socket.get(), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    }
    socket.closeNow();
}

std::optional<double> roundTripMs(const FileHandle& socket) {
    tcp_info info{};
    socklen_t length = sizeof info;
    if (::getsockopt(socket.get(), IPPROTO_TCP, TCP_INFO, &info, &length) != 0) return std::nullopt;
    if (info.tcpi_rtt == 0) return std::nullopt;
    return static_cast<double>(info.tcpi_rtt) / 1000;  // told in microseconds
}

}  // namespace quorrin
