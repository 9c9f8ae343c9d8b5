#include "platform/qt/qt_call.h"

#include <QCoreApplication>
#include <utility>

#include "platform/host/tcp_calls.h"
#include "platform/host/tcp_outgoing.h"
#include "platform/qt/lingering_call.h"

namespace quorrin {

QtCall::QtCall(QtCalls& owner, const std::string& host, int port)
    : owner_(owner), port_(port), life_(std::make_shared<bool>(true)) {
    if (isAddress(host)) {
        dial(host);
    } else {
        lookUp(host);
    }
}

QtCall::~QtCall() {
    close();
}

void QtCall::announce(void (QtCall::*step)()) {
    const std::weak_ptr<bool> life = life_;
    owner_.clock_.arrive(
        [this, life, step] {
            if (!life.expired()) (this->*step)();
        },
        &source_);
}

void QtCall::lookUp(const std::string& host) {
    // Not called off when the call ends, since Qt then loses what it holds for the answer.
    const std::weak_ptr<bool> life = life_;
    QHostInfo::lookupHost(QString::fromStdString(host), QCoreApplication::instance(),
                          [this, life](const QHostInfo& answer) {
                              if (!life.expired()) found(answer);
                          });
}

void QtCall::found(const QHostInfo& answer) {
    for (const QHostAddress& address : answer.addresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol)
            return dial(address.toString().toStdString());
    }
    const bool none = answer.error() == QHostInfo::NoError || answer.error() == QHostInfo::HostNotFound;
    fail(none ? "the host is not known" : answer.errorString().toStdString());
}

void QtCall::dial(const std::string& address) {
    std::string reason;
    socket_ = connectTcp(address, port_, reason);
    if (!socket_.valid()) return fail(reason);
    writable_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Write);
    QObject::connect(writable_.get(), &QSocketNotifier::activated, writable_.get(), [this] {
        writable_->setEnabled(false);
        if (state_ == CallState::connecting) {
            announce(&QtCall::settled);
        } else {
            push();
        }
    });
}

void QtCall::settled() {
    const std::string reason = connectOutcome(socket_);
    if (!reason.empty()) {
        state_ = CallState::failed;
        error_ = reason;
        return tellEnd();
    }
    state_ = CallState::connected;
    readable_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Read);
    QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(), [this] {
        // Till the event has been delivered there is nothing new to say.
        readable_->setEnabled(false);
        announce(&QtCall::takeBytes);
    });
    if (const auto handler = onConnected) handler();
}

void QtCall::takeBytes() {
    if (state_ != CallState::connected) return;
    std::string bytes;
    switch (receiveTcp(socket_, kCallReadBytes, bytes)) {
        case TcpResult::later:
            return readable_->setEnabled(true);
        case TcpResult::ended:
            hush();
            state_ = CallState::ended;
            return tellEnd();
        case TcpResult::broken:
            hush();
            state_ = CallState::failed;
            error_ = "the connection broke";
            return tellEnd();
        case TcpResult::some:
            break;
    }
    const std::weak_ptr<bool> life = life_;
    if (const auto handler = onBytes) handler(bytes);
    if (!life.expired() && state_ == CallState::connected) readable_->setEnabled(true);
}

void QtCall::send(std::string_view bytes) {
    if (state_ != CallState::connected) return;
    if (unsent_.empty() && sendTcp(socket_, bytes) == TcpResult::broken) return fail("the connection broke");
    if (bytes.empty()) return;
    if (unsent_.size() + bytes.size() > kCallSendBound) return fail("the other side does not read");
    unsent_ += bytes;
    writable_->setEnabled(true);
}

void QtCall::push() {
    if (state_ != CallState::connected) return;
    std::string_view rest = unsent_;
    const TcpResult result = sendTcp(socket_, rest);
    unsent_.erase(0, unsent_.size() - rest.size());
    if (result == TcpResult::broken) return fail("the connection broke");
    if (!unsent_.empty()) writable_->setEnabled(true);
}

void QtCall::fail(const std::string& reason) {
    hush();
    state_ = CallState::failed;
    error_ = reason;
    announce(&QtCall::tellEnd);
}

void QtCall::tellEnd() {
    if (const auto handler = onEnded) handler();
}

void QtCall::hush() {
    if (readable_) readable_->setEnabled(false);
    if (writable_) writable_->setEnabled(false);
}

std::optional<double> QtCall::roundTripMs() const {
    if (state_ != CallState::connected) return std::nullopt;
    return quorrin::roundTripMs(socket_);
}

void QtCall::close() {
    if (state_ == CallState::closed) return;
    const bool goesOn = state_ == CallState::connected;
    state_ = CallState::closed;
    life_.reset();
    // Only events of the clock come here, never Qt's own: the notifiers can go.
    readable_.reset();
    writable_.reset();
    if (goesOn) {
        owner_.forgetTheGone();
        owner_.lingering_.push_back(std::make_unique<LingeringCall>(std::move(socket_), std::move(unsent_)));
    } else {
        socket_.closeNow();
    }
}

}  // namespace quorrin
