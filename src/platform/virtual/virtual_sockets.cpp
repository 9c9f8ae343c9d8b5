#include "platform/virtual/virtual_sockets.h"

#include <utility>

#include "platform/timer_mm.h"

namespace quorrin {

class VirtualSocket : public Socket {
  public:
    VirtualSocket(VirtualSockets& owner, std::string array, int element)
        : owner_(owner), array_(std::move(array)), element_(element), late_(owner.clock_) {
        owner_.elements_[{array_, element_}] = this;
        late_.setPeriodic(false);
        late_.setHandler([this] { arriveFailed(); });
    }
    ~VirtualSocket() override {
        owner_.elements_.erase({array_, element_});
        tellPeerOfTheEnd();
    }

    SocketState state() const override { return state_; }
    std::string remoteHost() const override { return peer_.host; }
    std::string remoteHostIP() const override { return peer_.ip; }
    int remotePort() const override { return peer_.port; }
    int localPort() const override { return localPort_; }
    void setLocalPort(int port) override { localPort_ = port; }

    void listen() override {
        if (state_ != SocketState::closed) return;
        if (owner_.takenPorts_.count(localPort_) != 0) {
            error_ = "port " + std::to_string(localPort_) + " is in use";
            state_ = SocketState::failed;
            raiseErrorIn(kListenRetryMs);
            return;
        }
        error_.clear();
        state_ = SocketState::listening;
        if (owner_.onListen) owner_.onListen(array_, localPort_);
    }
    std::string listenError() const override { return error_; }

    void accept(std::int64_t request) override {
        if (state_ != SocketState::closed) return;
        const auto call = owner_.calls_.find(request);
        if (call == owner_.calls_.end() || call->second.takenBy >= 0) return;
        call->second.takenBy = element_;
        peer_ = call->second;
        localPort_ = peer_.toPort;
        state_ = SocketState::connected;
        if (owner_.onAccept) owner_.onAccept(array_, element_);
    }

    void close() override {
        if (state_ == SocketState::closed) return;
        state_ = SocketState::closed;
        unread_.clear();
        held_ = 0;
        slow_ = false;
        late_.setEnabled(false);
        failure_.reset();
        if (owner_.onShut) owner_.onShut(array_, element_);
        tellPeerOfTheEnd();
    }

    std::size_t bytesReceived() const override { return unread_.size(); }
    std::string read(std::size_t atMost) override {
        std::string bytes = unread_.substr(0, atMost);
        unread_.erase(0, bytes.size());
        return bytes;
    }

    void send(std::string_view bytes) override {
        if (state_ != SocketState::connected) return;
        if (slow_ && held_ + bytes.size() > kSocketSendBound) {
            state_ = SocketState::failed;
            raiseErrorIn(0);
            return;
        }
        if (slow_) held_ += bytes.size();
        if (owner_.onSend) owner_.onSend(array_, element_, bytes);
        if (!slow_ && peer_.peer.onBytes) peer_.peer.onBytes(bytes);
    }

    void tellPeerOfTheEnd() {
        const VirtualPeer peer = std::exchange(peer_.peer, {});
        if (peer.onShut) peer.onShut();
    }

    template <typename... Args>
    static void run(std::function<void(Args...)> handler, Args... args) {
        if (handler) handler(args...);
    }

    // The error event of this state comes later; not if the element is closed or destroyed before.
    void raiseErrorIn(std::int64_t ms) {
        if (ms == 0) {
            arriveFailed();
            return;
        }
        late_.setInterval(ms);
        late_.setEnabled(true);
    }
    void arriveFailed() {
        failure_ = std::make_shared<bool>(true);
        const std::weak_ptr<bool> still = failure_;
        owner_.clock_.arrive(
            [this, still] {
                if (still.expired()) return;
                failure_.reset();
                run(onError);
            },
            &owner_.source(array_));
    }

    VirtualSockets& owner_;
    std::string array_;
    int element_;
    SocketState state_ = SocketState::closed;
    VirtualSockets::Call peer_;
    int localPort_ = 0;
    std::string error_;
    std::string unread_;
    bool slow_ = false;
    std::size_t held_ = 0;
    TimerMM late_;
    std::shared_ptr<bool> failure_;  // an error event is under way
};

std::unique_ptr<Socket> VirtualSockets::create(const std::string& array, int element) {
    return std::make_unique<VirtualSocket>(*this, array, element);
}

VirtualSocket* VirtualSockets::find(const std::string& array, int element) const {
    const auto found = elements_.find({array, element});
    return found == elements_.end() ? nullptr : found->second;
}

VirtualSocket* VirtualSockets::connected(const std::string& array, int element) const {
    VirtualSocket* socket = find(array, element);
    return socket != nullptr && socket->state_ == SocketState::connected ? socket : nullptr;
}

int VirtualSockets::connect(const std::string& array, const std::string& fromIP, int fromPort,
                            const std::string& fromHost, VirtualPeer peer) {
    VirtualSocket* listener = find(array, 0);
    if (listener == nullptr || listener->state_ != SocketState::listening) return -1;
    const std::int64_t request = ++lastRequest_;
    listener->peer_ = {fromHost, fromIP, fromPort, listener->localPort_, {}, -1};
    Call& call = calls_[request] = listener->peer_;
    call.peer = std::move(peer);
    VirtualSocket::run(listener->onConnectionRequest, request);
    const auto done = calls_.extract(request);
    return done ? done.mapped().takenBy : -1;
}

std::string VirtualSockets::listeningOn(int port) const {
    for (const auto& [place, socket] : elements_) {
        if (place.second == 0 && socket->state_ == SocketState::listening && socket->localPort_ == port)
            return place.first;
    }
    return "";
}

void VirtualSockets::receive(const std::string& array, int element, const std::string& bytes) {
    VirtualSocket* socket = connected(array, element);
    if (socket == nullptr || !socket->onDataArrival || bytes.empty()) return;
    socket->unread_ += bytes;
    VirtualSocket::run(socket->onDataArrival);
}

void VirtualSockets::hangUp(const std::string& array, int element) {
    VirtualSocket* socket = connected(array, element);
    if (socket == nullptr) return;
    socket->state_ = SocketState::closing;
    VirtualSocket::run(socket->onClose);
}

void VirtualSockets::breakSocket(VirtualSocket& socket) {
    socket.state_ = SocketState::failed;
    VirtualSocket::run(socket.onError);
}

void VirtualSockets::fail(const std::string& array, int element) {
    if (VirtualSocket* socket = connected(array, element)) breakSocket(*socket);
}

void VirtualSockets::failListener(const std::string& array) {
    VirtualSocket* listener = find(array, 0);
    if (listener != nullptr && listener->state_ == SocketState::listening) breakSocket(*listener);
}

void VirtualSockets::setPortTaken(int port, bool taken) {
    if (taken) {
        takenPorts_.insert(port);
    } else {
        takenPorts_.erase(port);
    }
}

void VirtualSockets::setSlow(const std::string& array, int element) {
    if (VirtualSocket* socket = connected(array, element)) socket->slow_ = true;
}

std::size_t VirtualSockets::held(const std::string& array, int element) const {
    const VirtualSocket* socket = find(array, element);
    return socket == nullptr ? 0 : socket->held_;
}

}  // namespace quorrin
