#include "platform/qt/lingering_socket.h"

#include <string_view>
#include <utility>

namespace quorrin {

namespace {
constexpr int kLingerMs = 2000;
}

LingeringSocket::LingeringSocket(FileHandle socket, std::string rest)
    : socket_(std::move(socket)), rest_(std::move(rest)), writable_(socket_.get(), QSocketNotifier::Write) {
    QObject::connect(&writable_, &QSocketNotifier::activated, &writable_, [this] { push(); });
    deadline_.setSingleShot(true);
    QObject::connect(&deadline_, &QTimer::timeout, &deadline_, [this] {
        rest_.clear();
        push();
    });
    deadline_.start(kLingerMs);
}

void LingeringSocket::push() {
    std::string_view left = rest_;
    const TcpResult result = sendTcp(socket_, left);
    if (result == TcpResult::broken || result == TcpResult::ended) left = {};
    rest_.erase(0, rest_.size() - left.size());
    if (!rest_.empty()) return;
    writable_.setEnabled(false);
    deadline_.stop();
    socket_.closeNow();
}

}  // namespace quorrin
