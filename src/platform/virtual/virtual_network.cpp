#include "platform/virtual/virtual_network.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "platform/timer_mm.h"

namespace quorrin {

namespace {

class VirtualStream;

// What travels: bytes, or the word that the other side has closed.
struct Parcel {
    std::int64_t dueMs = 0;
    std::string bytes;
    bool closing = false;
};

}  // namespace

std::string tcpPlace(const std::string& address, int port) {
    return "tcp:" + address + ":" + std::to_string(port);
}

std::string localPlace(const std::string& name) {
    return "local:" + name;
}

// One end of a connection: what is under way to it, and the stream that its owner holds.
struct VirtualEnd : std::enable_shared_from_this<VirtualEnd> {
    VirtualEnd(VirtualNetwork& network_, std::string place_)
        : network(network_), place(std::move(place_)), wake(network_.clock_, [this] { pump(); }) {
        wake.setPeriodic(false);
    }

    VirtualNetwork& network;
    std::string place;
    TimerMM wake;
    ByteStream* stream = nullptr;  // null once the owner has let go of it
    std::weak_ptr<VirtualEnd> peer;
    std::deque<Parcel> inbox;
    std::size_t inboxBytes = 0;
    bool open = true;
    bool accepted = false;  // the owner has the stream and has set its handlers

    void accept() {
        accepted = true;
        pump();
    }

    void take(std::string bytes, bool closing) {
        std::int64_t dueMs = network.clock_.nowMs() + network.delayMs_;
        if (!inbox.empty()) dueMs = std::max(dueMs, inbox.back().dueMs);
        inboxBytes += bytes.size();
        inbox.push_back(Parcel{dueMs, std::move(bytes), closing});
        pump();
    }

    // Hands what is due to the clock's queue.
    void pump() {
        if (!accepted || network.hung_.count(place) != 0) return;
        const std::int64_t nowMs = network.clock_.nowMs();
        while (!inbox.empty() && inbox.front().dueMs <= nowMs) {
            Parcel parcel = std::move(inbox.front());
            inbox.pop_front();
            inboxBytes -= parcel.bytes.size();
            arrive(std::move(parcel));
        }
        if (inbox.empty()) return;
        wake.setEnabled(false);
        wake.setInterval(inbox.front().dueMs - nowMs);
        wake.setEnabled(true);
    }

    void arrive(Parcel parcel) {
        const auto deliver = [self = shared_from_this(), parcel = std::move(parcel)] {
            if (self->stream == nullptr || !self->open) return;
            if (parcel.closing) {
                self->open = false;
                if (const auto handler = self->stream->onClosed) handler();
            } else if (const auto handler = self->stream->onBytes) {
                handler(parcel.bytes);
            }
        };
        network.clock_.arrive(deliver, stream != nullptr ? stream->source : nullptr);
    }

    // The owner closes, or lets go.
    void shut() {
        if (!open) return;
        open = false;
        if (const auto other = peer.lock()) other->take({}, true);
    }
};

namespace {

class VirtualStream : public ByteStream {
  public:
    explicit VirtualStream(std::shared_ptr<VirtualEnd> end) : end_(std::move(end)) { end_->stream = this; }
    ~VirtualStream() override {
        end_->stream = nullptr;
        end_->shut();
    }

    bool send(std::string_view bytes) override {
        const auto peer = end_->peer.lock();
        if (!end_->open || !peer || peer->inboxBytes + bytes.size() > kSendBound) return false;
        if (!bytes.empty()) peer->take(std::string(bytes), false);
        return true;
    }
    std::size_t pendingBytes() const override {
        const auto peer = end_->peer.lock();
        return peer ? peer->inboxBytes : 0;
    }
    void close() override { end_->shut(); }
    bool isOpen() const override { return end_->open; }

  private:
    std::shared_ptr<VirtualEnd> end_;
};

}  // namespace

class VirtualListener : public Listener {
  public:
    VirtualListener(VirtualNetwork& network, std::string place, int port)
        : network_(network), place_(std::move(place)), port_(port), alive_(std::make_shared<bool>(true)) {
        network_.listeners_[place_] = this;
    }
    ~VirtualListener() override {
        *alive_ = false;
        network_.listeners_.erase(place_);
    }
    int port() const override { return port_; }

    void offer(const std::shared_ptr<VirtualEnd>& end) {
        // A std::function must be copyable, so the stream travels in a shared box.
        const auto box = std::make_shared<std::unique_ptr<ByteStream>>(std::make_unique<VirtualStream>(end));
        network_.clock_.arrive(
            [this, alive = alive_, end, box] {
                std::unique_ptr<ByteStream> stream = std::move(*box);
                if (!*alive) return;
                if (const auto handler = onConnection) handler(std::move(stream));
                end->accept();
            },
            source);
    }

  private:
    VirtualNetwork& network_;
    std::string place_;
    int port_;
    std::shared_ptr<bool> alive_;
};

class VirtualConnecting : public Connecting {
  public:
    VirtualConnecting(VirtualNetwork& network, const std::string& place, ConnectHandler handler)
        : alive_(std::make_shared<bool>(true)), wake_(network.clock_) {
        const auto finish = [&network, place, handler = std::move(handler), alive = alive_] {
            if (*alive) network.finishConnect(place, handler);
        };
        if (network.delayMs_ <= 0) {
            network.clock_.arrive(finish);
            return;
        }
        wake_.setHandler([&network, finish] { network.clock_.arrive(finish); });
        wake_.setPeriodic(false);
        wake_.setInterval(network.delayMs_);
        wake_.setEnabled(true);
    }
    ~VirtualConnecting() override { *alive_ = false; }

  private:
    std::shared_ptr<bool> alive_;
    TimerMM wake_;
};

VirtualNetwork::~VirtualNetwork() = default;

std::unique_ptr<Listener> VirtualNetwork::listenTcp(const std::string& address, int port,
                                                    std::string* error) {
    if (port == 0) port = ++lastFreePort_;
    return listen(tcpPlace(address, port), port, error);
}

std::unique_ptr<Listener> VirtualNetwork::listenLocal(const std::string& name, std::string* error) {
    return listen(localPlace(name), 0, error);
}

std::unique_ptr<Connecting> VirtualNetwork::connectTcp(const std::string& address, int port,
                                                       ConnectHandler handler) {
    return connect(tcpPlace(address, port), std::move(handler));
}

std::unique_ptr<Connecting> VirtualNetwork::connectLocal(const std::string& name, ConnectHandler handler) {
    return connect(localPlace(name), std::move(handler));
}

std::unique_ptr<Listener> VirtualNetwork::listen(const std::string& place, int port, std::string* error) {
    if (listeners_.count(place) != 0) {
        if (error != nullptr) *error = "address in use";
        return nullptr;
    }
    return std::make_unique<VirtualListener>(*this, place, port);
}

std::unique_ptr<Connecting> VirtualNetwork::connect(const std::string& place, ConnectHandler handler) {
    ++attempts_[place];
    return std::make_unique<VirtualConnecting>(*this, place, std::move(handler));
}

void VirtualNetwork::finishConnect(const std::string& place, const ConnectHandler& handler) {
    if (unreachable_.count(place) != 0) return;
    const auto listener = listeners_.find(place);
    const ConnectHandler keep = handler;
    if (listener == listeners_.end()) {
        keep(nullptr, "connection refused");
        return;
    }
    const auto near = std::make_shared<VirtualEnd>(*this, place);
    const auto far = std::make_shared<VirtualEnd>(*this, place);
    near->peer = far;
    far->peer = near;
    ends_.erase(std::remove_if(ends_.begin(), ends_.end(), [](const auto& end) { return end.expired(); }),
                ends_.end());
    ends_.push_back(near);
    ends_.push_back(far);
    auto nearStream = std::make_unique<VirtualStream>(near);
    listener->second->offer(far);
    keep(std::move(nearStream), "");
    near->accept();
}

std::vector<std::shared_ptr<VirtualEnd>> VirtualNetwork::endsAt(const std::string& place) {
    std::vector<std::shared_ptr<VirtualEnd>> found;
    for (const auto& weak : ends_) {
        if (auto end = weak.lock(); end && end->place == place) found.push_back(std::move(end));
    }
    return found;
}

void VirtualNetwork::setUnreachable(const std::string& place, bool unreachable) {
    if (unreachable) {
        unreachable_.insert(place);
    } else {
        unreachable_.erase(place);
    }
}

void VirtualNetwork::setHung(const std::string& place, bool hung) {
    if (hung) {
        hung_.insert(place);
        return;
    }
    hung_.erase(place);
    for (const auto& end : endsAt(place)) end->pump();
}

void VirtualNetwork::cut(const std::string& place) {
    for (const auto& end : endsAt(place)) {
        end->inbox.clear();
        end->inboxBytes = 0;
        if (end->open) end->arrive(Parcel{0, {}, true});
    }
}

int VirtualNetwork::attempts(const std::string& place) const {
    const auto found = attempts_.find(place);
    return found == attempts_.end() ? 0 : found->second;
}

}  // namespace quorrin
