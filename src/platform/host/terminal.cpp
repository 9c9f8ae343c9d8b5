#include "platform/host/terminal.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <csignal>

namespace quorrin {

namespace {

const std::string kClearLine = "\r\x1B[K";
constexpr std::size_t kUsualWidth = 80;

}  // namespace

Terminal::Terminal(int descriptor) : descriptor_(descriptor), isTerminal_(::isatty(descriptor) != 0) {
    std::signal(SIGPIPE, SIG_IGN);
}

Terminal::~Terminal() {
    if (!live_.empty()) write("\n");
}

void Terminal::line(const std::string& text) {
    if (live_.empty()) return write(text + "\n");
    write(kClearLine + text + "\n" + live_);
}

void Terminal::live(const std::string& text) {
    if (!isTerminal_) return write(text + "\n");
    live_ = text.substr(0, width() - 1);
    write(kClearLine + live_);
}

void Terminal::write(const std::string& text) {
    pollfd ready{descriptor_, POLLOUT, 0};
    if (::poll(&ready, 1, 0) != 1 || (ready.revents & POLLOUT) == 0) return;
    [[maybe_unused]] const ssize_t written = ::write(descriptor_, text.data(), text.size());
}

std::size_t Terminal::width() const {
    winsize size{};
    if (::ioctl(descriptor_, TIOCGWINSZ, &size) != 0 || size.ws_col < 2) return kUsualWidth;
    return size.ws_col;
}

}  // namespace quorrin
