#include "platform/qt/lingering_call.h"

#include <utility>

#include "platform/calls.h"
#include "platform/host/tcp_calls.h"
#include "platform/host/tcp_outgoing.h"

namespace quorrin {

LingeringCall::LingeringCall(FileHandle socket, std::string rest)
    : socket_(std::move(socket)),
      rest_(std::move(rest)),
      readable_(socket_.get(), QSocketNotifier::Read),
      writable_(socket_.get(), QSocketNotifier::Write) {
    QObject::connect(&readable_, &QSocketNotifier::activated, &readable_, [this] { drain(); });
    QObject::connect(&writable_, &QSocketNotifier::activated, &writable_, [this] { push(); });
    deadline_.setSingleShot(true);
    QObject::connect(&deadline_, &QTimer::timeout, &deadline_, [this] { end(); });
    deadline_.start(static_cast<int>(kCallLingerMs));
    push();
}

LingeringCall::~LingeringCall() {
    if (!over_) end();
}

void LingeringCall::push() {
    std::string_view left = rest_;
    const TcpResult result = sendTcp(socket_, left);
    rest_.erase(0, rest_.size() - left.size());
    if (result == TcpResult::broken) return end();
    if (!rest_.empty()) return;
    writable_.setEnabled(false);
    endSending(socket_);
}

void LingeringCall::drain() {
    std::string thrownAway;
    const TcpResult result = receiveTcp(socket_, kCallReadBytes, thrownAway);
    if (result == TcpResult::ended || result == TcpResult::broken) end();
}

void LingeringCall::end() {
    over_ = true;
    readable_.setEnabled(false);
    writable_.setEnabled(false);
    deadline_.stop();
    closeWithoutRest(socket_);
}

}  // namespace quorrin
