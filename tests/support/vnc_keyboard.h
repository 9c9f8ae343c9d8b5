// A keyboard at a program whose windows stand on Qt's VNC platform: real windows without a screen, and
// somebody from outside who types. Speaks RFB 3.3 as far as typing needs it, over loopback; looks at no
// picture.
#pragma once

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <string>
#include <vector>

#include "support/process.h"

namespace quorrin {

class VncKeyboard {
  public:
    enum Key : std::uint32_t { home = 0xFF50, up = 0xFF52, enter = 0xFF0D, f4 = 0xFFC1 };

    VncKeyboard() = default;
    VncKeyboard(const VncKeyboard&) = delete;
    VncKeyboard& operator=(const VncKeyboard&) = delete;
    ~VncKeyboard() { drop(); }

    // Waits for the program's server and shakes hands with it.
    bool connects(double deadline_s) {
        return eventually([this] { return reach(); }, deadline_s) && shakeHands();
    }
    void press(Key key) const {
        for (const char down : {'\1', '\0'}) {
            const std::uint32_t number = key;
            std::string event("\4\0\0\0", 4);
            event[1] = down;
            for (int shift = 24; shift >= 0; shift -= 8) event += static_cast<char>(number >> shift);
            say(event);
        }
    }

  private:
    static constexpr std::uint16_t kPort = 5900;

    bool reach() {
        drop();
        line_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(kPort);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const timeval patience{10, 0};
        ::setsockopt(line_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        return ::connect(line_, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }
    // Version, no password, a shared screen; what the screen is like does not matter here.
    bool shakeHands() const {
        const std::string version = heard(12);
        if (version.substr(0, 3) != "RFB") return false;
        say("RFB 003.003\n");
        if (heard(4) != std::string("\0\0\0\1", 4)) return false;
        say("\1");
        constexpr std::size_t kScreenWords = 24;
        return heard(kScreenWords).size() == kScreenWords;
    }
    std::string heard(std::size_t size) const {
        std::vector<char> text(size);
        const ssize_t got = ::recv(line_, text.data(), size, MSG_WAITALL);
        return got == static_cast<ssize_t>(size) ? std::string(text.begin(), text.end()) : std::string();
    }
    void say(const std::string& text) const { ::send(line_, text.data(), text.size(), MSG_NOSIGNAL); }
    void drop() {
        if (line_ >= 0) ::close(line_);
        line_ = -1;
    }

    int line_ = -1;
};

}  // namespace quorrin
