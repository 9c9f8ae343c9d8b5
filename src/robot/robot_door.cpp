#include "robot/robot_door.h"

#include <utility>

namespace quorrin {

namespace {

constexpr std::int64_t kHeartbeatMs = 100;
constexpr std::int64_t kGreetingMs = 2000;
constexpr std::int64_t kAliveMs = 1000;
constexpr std::size_t kMostWaiting = 8;
constexpr const char* kOwnName = "quorrin-robot";

}  // namespace

RobotDoor::RobotDoor(Clock& clock, wire::Role role, std::function<void(const std::string&)> log)
    : clock_(clock), role_(role), log_(std::move(log)), timer_(clock, [this] { watch(); }) {
    timer_.setInterval(kHeartbeatMs);
    timer_.setEnabled(true);
}

std::string RobotDoor::open(Streams& streams, const std::string& address, int port) {
    std::string error;
    listener_ = streams.listenTcp(address, port, &error);
    if (!listener_) return "cannot listen on " + address + " port " + std::to_string(port) + ": " + error;
    listener_->onConnection = [this](std::unique_ptr<ByteStream> stream) { take(std::move(stream)); };
    return "";
}

void RobotDoor::take(std::unique_ptr<ByteStream> stream) {
    if (refuses && refuses()) return;
    if (waiting_.size() >= kMostWaiting) {
        log_(roleName(role_) + ": too many strangers at the door, one more was turned away");
        return;
    }
    Guest& guest = waiting_.emplace_back();
    guest.sinceMs = clock_.nowMs();
    guest.channel = std::make_unique<PacketChannel>(std::move(stream), role_, kOwnName);
    guest.channel->onGreeted = [this, &guest](const std::string& name) { greeted(guest, name); };
    guest.channel->onEnded = [this, &guest](const std::string& why) {
        guest.over = true;
        log_(roleName(role_) + ": dropped a stranger: it " + why);
    };
}

void RobotDoor::greeted(Guest& guest, const std::string& name) {
    guest.over = true;
    if (inside_ && clock_.nowMs() - heardMs_ < kAliveMs) {
        log_(roleName(role_) + ": turned " + name + " away, " + name_ + " is connected");
        guest.channel->close("another gateway is connected");
        return;
    }
    if (inside_) leave("was silent and another one came");
    inside_ = std::move(guest.channel);
    name_ = name;
    heardMs_ = clock_.nowMs();
    heardBytes_ = reportedBytes_ = inside_->bytesHeard();
    inside_->onPacket = [this](const wire::Packet& it) { packet(it); };
    inside_->onEnded = [this](const std::string& why) { leave(why); };
    log_(roleName(role_) + ": " + name + " connected");
    if (onCame) onCame();
}

void RobotDoor::packet(const wire::Packet& it) {
    if (kindOf(it) == PacketKind::heartbeat) return;
    if (kindOf(it) != PacketKind::operation || roleOf(it) != role_)
        return leave("sent what does not belong to this link");
    if (onOperation) onOperation(it);
}

void RobotDoor::leave(const std::string& why) {
    log_(roleName(role_) + ": " + name_ + " gone: it " + why);
    inside_.reset();
    if (onGone) onGone();
}

bool RobotDoor::heardSomething() {
    if (!inside_ || inside_->bytesHeard() == reportedBytes_) return false;
    reportedBytes_ = inside_->bytesHeard();
    return true;
}

bool RobotDoor::send(const wire::Packet& packet) {
    return inside_ && inside_->send(packet);
}

void RobotDoor::drop(const std::string& why) {
    if (inside_) leave(why);
}

void RobotDoor::close(const std::string& reason) {
    timer_.setEnabled(false);
    if (inside_) inside_->close(reason);
    inside_.reset();
    waiting_.clear();
    listener_.reset();
}

void RobotDoor::watch() {
    waiting_.remove_if([this](const Guest& guest) {
        if (!guest.over && clock_.nowMs() - guest.sinceMs >= kGreetingMs) {
            log_(roleName(role_) + ": dropped a stranger: it said no Hello within 2 s");
            return true;
        }
        return guest.over;
    });
    if (!inside_) return;
    if (inside_->bytesHeard() != heardBytes_) {
        heardBytes_ = inside_->bytesHeard();
        heardMs_ = clock_.nowMs();
    }
    wire::Packet beat;
    beat.mutable_heartbeat();
    send(beat);
}

}  // namespace quorrin
