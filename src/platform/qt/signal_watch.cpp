#include "platform/qt/signal_watch.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace quorrin {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};
int wakePair[2] = {-1, -1};

void onSignal(int) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(wakePair[1], &byte, 1);
    errno = before;
}

}  // namespace

SignalWatch::SignalWatch(Clock& clock, std::function<void()> handler) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, wakePair) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(wakePair[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [&clock, handler = std::move(handler)] {
                         char bytes[64];
                         while (::read(wakePair[0], bytes, sizeof bytes) > 0) {
                         }
                         clock.arrive(handler);
                     });
    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals) ::sigaction(signal, &action, nullptr);
}

SignalWatch::~SignalWatch() {
    for (const int signal : kSignals) std::signal(signal, SIG_DFL);
    notifier_.reset();
    for (int& end : wakePair) {
        ::close(end);
        end = -1;
    }
}

}  // namespace quorrin
