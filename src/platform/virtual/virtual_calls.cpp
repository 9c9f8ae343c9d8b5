#include "platform/virtual/virtual_calls.h"

#include <algorithm>
#include <utility>

namespace quorrin {

class VirtualCall;

// One connection in the making or made: what lies between the call and the element that took it. Either end
// may go at any time. The station's events come under the array's source, the call's under its own.
struct VirtualLine : std::enable_shared_from_this<VirtualLine> {
    VirtualLine(VirtualCalls& calls, VirtualCall& call_, int port_)
        : owner(&calls), call(&call_), port(port_) {}

    VirtualCalls* owner;  // null once it is gone: what is still under way then comes to nothing
    VirtualCall* call;    // null once it is closed or gone
    EventSource source;
    int port;
    std::string array;
    int element = -1;        // of the station; -1 before it has taken the call and after it has ended it
    bool requested = false;  // the station has handled the request
    std::string toStation;
    std::string toCall;
    bool callShut = false;     // to be told to the station after the bytes
    bool stationShut = false;  // to be told to the call after the bytes
    bool over = false;         // for the station: nothing more goes there

    void later(EventSource* under, void (VirtualLine::*step)()) {
        owner->clock_.arrive(
            [line = shared_from_this(), step] {
                if (line->owner != nullptr) ((*line).*step)();
            },
            under);
    }
    void connect();
    void request();
    void wakeStation() { later(&owner->sockets_.source(array), &VirtualLine::deliverToStation); }
    void wakeCall() { later(&source, &VirtualLine::deliverToCall); }
    void deliverToStation();
    void deliverToCall();
    void breakLater() {
        later(&owner->sockets_.source(array), &VirtualLine::breakStation);
        later(&source, &VirtualLine::breakCall);
    }
    void breakStation();
    void breakCall();
};

class VirtualCall : public Call {
  public:
    VirtualCall(VirtualCalls& owner, int port) : line_(std::make_shared<VirtualLine>(owner, *this, port)) {}
    ~VirtualCall() override { close(); }

    CallState state() const override { return state_; }
    std::string error() const override { return error_; }

    void send(std::string_view bytes) override {
        if (state_ != CallState::connected) return;
        if (line_->toStation.size() + bytes.size() > kCallSendBound) {
            fail("the other side does not read");
            return;
        }
        line_->toStation += bytes;
        line_->wakeStation();
    }

    void close() override {
        if (state_ == CallState::closed) return;
        const bool told = state_ == CallState::connected;
        state_ = CallState::closed;
        line_->call = nullptr;
        if (!told) return;
        line_->callShut = true;
        line_->wakeStation();
    }

    std::optional<double> roundTripMs() const override {
        return state_ == CallState::connected ? line_->owner->roundTripMs_ : std::nullopt;
    }

    void end(CallState state, const std::string& error) {
        state_ = state;
        error_ = error;
        if (const auto handler = onEnded) handler();
    }
    void fail(const std::string& error) {
        state_ = CallState::failed;
        error_ = error;
        line_->breakLater();
    }

    std::shared_ptr<VirtualLine> line_;
    CallState state_ = CallState::connecting;
    std::string error_;
};

void VirtualLine::connect() {
    if (call == nullptr || !owner->reachable_ || owner->pulled_) return;
    array = owner->sockets_.listeningOn(port);
    if (array.empty()) return call->end(CallState::failed, "Connection refused");
    call->state_ = CallState::connected;
    later(&owner->sockets_.source(array), &VirtualLine::request);
    if (const auto handler = call->onConnected) handler();
}

void VirtualLine::request() {
    // The peer lives as long as the element, which may be longer than this connection.
    const std::weak_ptr<VirtualLine> line = weak_from_this();
    VirtualPeer peer;
    peer.onBytes = [line](std::string_view bytes) {
        const auto here = line.lock();
        if (!here || here->owner == nullptr) return;
        here->toCall += bytes;
        here->wakeCall();
    };
    peer.onShut = [line] {
        const auto here = line.lock();
        if (!here || here->owner == nullptr) return;
        here->element = -1;
        here->over = here->stationShut = true;
        here->wakeCall();
    };
    const int taken =
        owner->sockets_.connect(array, owner->address_, ++owner->lastPort_, "", std::move(peer));
    requested = true;
    if (taken < 0) {
        over = stationShut = true;
        wakeCall();
    } else if (!over) {
        element = taken;
        wakeStation();
    }
}

void VirtualLine::deliverToStation() {
    if (!requested || over || owner->pulled_) return;
    if (!toStation.empty()) owner->sockets_.receive(array, element, std::exchange(toStation, {}));
    // The station may have ended it in its handler.
    if (!callShut || over) return;
    over = true;
    owner->sockets_.hangUp(array, element);
}

void VirtualLine::deliverToCall() {
    if (call == nullptr || call->state_ != CallState::connected || owner->pulled_) return;
    if (!toCall.empty()) {
        const std::string bytes = toCall.substr(0, kCallReadBytes);
        toCall.erase(0, bytes.size());
        if (!toCall.empty()) wakeCall();
        if (const auto handler = call->onBytes) handler(bytes);
    }
    if (stationShut && toCall.empty() && call != nullptr && call->state_ == CallState::connected)
        call->end(CallState::ended, "");
}

void VirtualLine::breakStation() {
    if (over) return;
    over = true;
    if (element >= 0) owner->sockets_.fail(array, element);
}

void VirtualLine::breakCall() {
    if (call == nullptr) return;
    if (call->state_ == CallState::connected) return call->end(CallState::failed, "the connection broke");
    if (call->state_ == CallState::failed) call->end(CallState::failed, call->error_);
}

VirtualCalls::~VirtualCalls() {
    for (const auto& weak : lines_) {
        if (const auto line = weak.lock()) line->owner = nullptr;
    }
}

std::unique_ptr<Call> VirtualCalls::call(const std::string& /*host*/, int port) {
    ++tried_[port];
    auto made = std::make_unique<VirtualCall>(*this, port);
    lines_.erase(
        std::remove_if(lines_.begin(), lines_.end(), [](const auto& line) { return line.expired(); }),
        lines_.end());
    lines_.push_back(made->line_);
    made->line_->later(&made->line_->source, &VirtualLine::connect);
    return made;
}

bool VirtualCalls::lingering() {
    return std::any_of(lines_.begin(), lines_.end(), [](const auto& weak) {
        const auto line = weak.lock();
        return line && line->callShut && !line->over;
    });
}

void VirtualCalls::setPulled(bool pulled) {
    pulled_ = pulled;
    if (pulled) return;
    for (const auto& weak : lines_) {
        const auto line = weak.lock();
        if (!line || line->array.empty()) continue;
        line->wakeStation();
        line->wakeCall();
    }
}

void VirtualCalls::breakAll() {
    for (const auto& weak : lines_) {
        const auto line = weak.lock();
        if (line && !line->array.empty()) line->breakLater();
    }
}

int VirtualCalls::tried(int port) const {
    const auto found = tried_.find(port);
    return found == tried_.end() ? 0 : found->second;
}

}  // namespace quorrin
