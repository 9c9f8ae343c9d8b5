// A TCP client as anybody may write one, on this machine; nothing of the station's code but the handle.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstdint>
#include <string>
#include <utility>

#include "platform/host/file_handle.h"

namespace quorrin {

class PlainClient {
  public:
    PlainClient() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    bool connect(int port) {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_port = htons(static_cast<std::uint16_t>(port));
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return ::connect(socket_.get(), reinterpret_cast<sockaddr*>(&place), sizeof place) == 0;
    }
    int port() const {
        sockaddr_in own{};
        socklen_t length = sizeof own;
        ::getsockname(socket_.get(), reinterpret_cast<sockaddr*>(&own), &length);
        return ntohs(own.sin_port);
    }
    void send(const std::string& bytes) const {
        ::send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    }
    // What the machine takes at once; how many bytes that is.
    std::size_t sendSome(const std::string& bytes) const {
        const ssize_t sent = ::send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        return sent < 0 ? 0 : static_cast<std::size_t>(sent);
    }
    // What has come since the last call.
    std::string received() {
        collect();
        return std::exchange(waiting_, {});
    }
    // The station has closed.
    bool ended() {
        collect();
        return ended_;
    }
    void hangUp() { socket_.closeNow(); }
    void endSending() const { ::shutdown(socket_.get(), SHUT_WR); }
    void reset() {
        const linger atOnce{1, 0};
        ::setsockopt(socket_.get(), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        socket_.closeNow();
    }

  private:
    void collect() {
        char bytes[65536];
        for (;;) {
            const ssize_t got = ::recv(socket_.get(), bytes, sizeof bytes, MSG_DONTWAIT);
            if (got <= 0) {
                ended_ = ended_ || got == 0 || errno == ECONNRESET;
                return;
            }
            waiting_.append(bytes, static_cast<std::size_t>(got));
        }
    }

    FileHandle socket_;
    std::string waiting_;
    bool ended_ = false;
};

}  // namespace quorrin
