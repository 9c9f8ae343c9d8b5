#include "platform/qt/qt_socket.h"

#include <algorithm>
#include <utility>

#include "platform/qt/lingering_socket.h"

namespace quorrin {

namespace {

constexpr std::size_t kReadBytes = 64 * 1024;
// What an owner may leave unread before its client counts as broken.
constexpr std::size_t kUnreadBound = 1024 * 1024;

}  // namespace

QtSocket::QtSocket(QtSockets& owner, EventSource& source)
    : owner_(owner), source_(source), late_(owner.clock_), life_(std::make_shared<bool>(true)) {
    late_.setPeriodic(false);
}

QtSocket::~QtSocket() {
    close();
}

void QtSocket::watch() {
    readable_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Read);
    QObject::connect(readable_.get(), &QSocketNotifier::activated, readable_.get(), [this] {
        // Till the event has been delivered there is nothing new to say.
        readable_->setEnabled(false);
        announce(state_ == SocketState::listening ? &QtSocket::takeCall : &QtSocket::takeBytes);
    });
}

void QtSocket::hush() {
    if (readable_) readable_->setEnabled(false);
    if (writable_) writable_->setEnabled(false);
}

void QtSocket::announce(void (QtSocket::*step)()) {
    const std::weak_ptr<bool> life = life_;
    owner_.clock_.arrive(
        [this, life, step] {
            if (!life.expired()) (this->*step)();
        },
        &source_);
}

void QtSocket::listen() {
    if (state_ != SocketState::closed) return;
    listenError_.clear();
    socket_ = listenTcp(localPort_, listenError_);
    if (socket_.valid()) {
        state_ = SocketState::listening;
        watch();
        return;
    }
    state_ = SocketState::failed;
    late_.setHandler([this] { announce(&QtSocket::tellFailed); });
    late_.setInterval(kListenRetryMs);
    late_.setEnabled(true);
}

void QtSocket::takeCall() {
    if (state_ != SocketState::listening) return;
    TcpCall call;
    switch (acceptTcp(socket_, call)) {
        case TcpAccept::noDescriptors:
            return shedCall();
        case TcpAccept::broken:
            hush();
            state_ = SocketState::failed;
            return tellFailed();
        case TcpAccept::nobody:
            return readable_->setEnabled(true);
        case TcpAccept::call:
            break;
    }
    peerIp_ = call.ip;
    peerPort_ = call.port;
    const std::int64_t request = ++owner_.lastRequest_;
    QtSockets& owner = owner_;
    owner.calls_.emplace(request, std::move(call));
    const std::weak_ptr<bool> life = life_;
    if (const auto handler = onConnectionRequest) handler(request);
    // Whom nobody took sees the connection closed.
    owner.calls_.erase(request);
    if (!life.expired() && state_ == SocketState::listening) readable_->setEnabled(true);
}

void QtSocket::shedCall() {
    owner_.spare_.closeNow();
    TcpCall turnedAway;
    if (acceptTcp(socket_, turnedAway) == TcpAccept::call) ++owner_.shed_;
    turnedAway.socket.closeNow();
    owner_.spare_ = spareDescriptor();
    late_.setHandler([this] { readable_->setEnabled(true); });
    late_.setInterval(QtSockets::kShedMs);
    late_.setEnabled(true);
}

void QtSocket::accept(std::int64_t request) {
    if (state_ != SocketState::closed) return;
    auto call = owner_.calls_.extract(request);
    if (!call) return;
    socket_ = std::move(call.mapped().socket);
    peerIp_ = call.mapped().ip;
    peerPort_ = call.mapped().port;
    localPort_ = call.mapped().localPort;
    state_ = SocketState::connected;
    watch();
}

void QtSocket::takeBytes() {
    if (state_ != SocketState::connected) return;
    if (unread_.size() > kUnreadBound) return fail();
    switch (receiveTcp(socket_, kReadBytes, unread_)) {
        case TcpResult::later:
            return readable_->setEnabled(true);
        case TcpResult::broken:
            hush();
            state_ = SocketState::failed;
            return tellFailed();
        case TcpResult::ended: {
            hush();
            state_ = SocketState::closing;
            const auto handler = onClose;
            if (handler) handler();
            return;
        }
        case TcpResult::some:
            break;
    }
    const std::weak_ptr<bool> life = life_;
    const auto handler = onDataArrival;
    if (handler) {
        handler();
    } else {
        unread_.clear();
    }
    if (!life.expired() && state_ == SocketState::connected) readable_->setEnabled(true);
}

void QtSocket::tellFailed() {
    const auto handler = onError;
    if (handler) handler();
}

std::string QtSocket::read(std::size_t atMost) {
    std::string bytes = unread_.substr(0, atMost);
    unread_.erase(0, bytes.size());
    return bytes;
}

void QtSocket::fail() {
    hush();
    state_ = SocketState::failed;
    announce(&QtSocket::tellFailed);
}

void QtSocket::send(std::string_view bytes) {
    if (state_ != SocketState::connected) return;
    if (unsent_.empty()) {
        const TcpResult result = sendTcp(socket_, bytes);
        if (result == TcpResult::broken) return fail();
        // Reading tells how it ended, and what came before.
        if (result == TcpResult::ended) return;
    }
    if (bytes.empty()) return;
    if (unsent_.size() + bytes.size() > kSocketSendBound) return fail();
    unsent_ += bytes;
    if (writable_) return writable_->setEnabled(true);
    writable_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Write);
    QObject::connect(writable_.get(), &QSocketNotifier::activated, writable_.get(), [this] { push(); });
}

void QtSocket::push() {
    std::string_view rest = unsent_;
    const TcpResult result = sendTcp(socket_, rest);
    unsent_.erase(0, unsent_.size() - rest.size());
    if (result == TcpResult::broken) return fail();
    if (result == TcpResult::ended) unsent_.clear();
    if (!unsent_.empty()) return;
    writable_->setEnabled(false);
    unsent_.shrink_to_fit();
}

void QtSocket::close() {
    if (state_ == SocketState::closed) return;
    // A peer that has ended its own sending may still read.
    const bool goesOut =
        (state_ == SocketState::connected || state_ == SocketState::closing) && !unsent_.empty();
    life_ = std::make_shared<bool>(true);
    // Only events of the clock come here, never Qt's own: the notifiers can go.
    readable_.reset();
    writable_.reset();
    late_.setEnabled(false);
    state_ = SocketState::closed;
    // A broken element may stay in its place for long, and shall hold nothing there.
    std::string().swap(unread_);
    auto& lingering = owner_.lingering_;
    lingering.erase(
        std::remove_if(lingering.begin(), lingering.end(), [](const auto& socket) { return socket->over(); }),
        lingering.end());
    if (goesOut) {
        lingering.push_back(std::make_unique<LingeringSocket>(std::move(socket_), std::move(unsent_)));
    } else {
        socket_.closeNow();
    }
    std::string().swap(unsent_);
}

QtSockets::QtSockets(Clock& clock) : clock_(clock), spare_(spareDescriptor()) {}

QtSockets::~QtSockets() = default;

std::unique_ptr<Socket> QtSockets::create(const std::string& array, int /*element*/) {
    return std::make_unique<QtSocket>(*this, sources_[array]);
}

}  // namespace quorrin
