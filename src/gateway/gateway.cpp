#include "gateway/gateway.h"

#include <algorithm>
#include <utility>

namespace quorrin {

namespace {

constexpr std::int64_t kWaitMs = 50;
constexpr int kWaits = 200;
constexpr std::int64_t kAloneMs = 250;
constexpr int kTimesAlone = 4;
constexpr std::size_t kMaxCallers = 8;

wire::Packet suspendDrive(int channel) {
    wire::Packet packet;
    packet.mutable_suspend_drive()->set_channel(channel);
    return packet;
}

int passable(int wheelSpeed) {
    return wheelSpeed == -1 ? -2 : wheelSpeed;
}

}  // namespace

Gateway::Gateway(const GatewayPorts& ports, const GatewayKind& kind)
    : ports_(ports),
      kind_(kind),
      robot_(
          ports.clock, ports.streams, kind,
          [this] { return readRobotAddress(ports_.files, ports_.profileFolder + "/" + kind_.profile); },
          ports.log),
      waiting_(ports.clock, [this] { start(); }),
      alone_(ports.clock, [this] { lookForStation(); }) {
    waiting_.setPeriodic(false);
    waiting_.setInterval(kWaitMs);
    alone_.setInterval(kAloneMs);
    robot_.onUp = [this] {
        if (powerByte_) robot_.send(*powerByte_);
    };
    robot_.onFrame = [this](const wire::Packet& frame) { deliver(frame); };
}

void Gateway::start() {
    if (ended_) return;
    switch (ports_.window.claim()) {
        case WindowClaim::taken:
            return begin();
        case WindowClaim::otherAlive:
            return shutDown("another one is alive");
        case WindowClaim::otherClosing:
            if (++waits_ > kWaits) return shutDown("another one does not finish closing", 1);
            waiting_.setEnabled(true);
    }
}

void Gateway::begin() {
    std::string error;
    listener_ = ports_.streams.listenLocal(kind_.endpoint, &error);
    if (!listener_) return shutDown("cannot listen for the station: " + error, 1);
    listener_->onConnection = [this](std::unique_ptr<ByteStream> stream) { called(std::move(stream)); };
    alone_.setEnabled(true);
    ports_.log("started");
    robot_.start();
}

void Gateway::lookForStation() {
    timesAlone_ = ports_.stationRuns() ? 0 : timesAlone_ + 1;
    if (timesAlone_ >= kTimesAlone) shutDown("no station runs");
}

void Gateway::called(std::unique_ptr<ByteStream> stream) {
    if (ended_ || callers_.size() >= kMaxCallers) return;
    callers_.push_back(std::make_unique<PacketChannel>(std::move(stream), kind_.role, kind_.program));
    PacketChannel& caller = *callers_.back();
    caller.onGreeted = [this, &caller](const std::string& name) { greeted(caller, name); };
    caller.onEnded = [this, &caller](const std::string& why) {
        ports_.log("dropped a local caller: it " + why);
        leave(caller);
    };
}

std::unique_ptr<PacketChannel> Gateway::leave(PacketChannel& caller) {
    const auto place = std::find_if(callers_.begin(), callers_.end(),
                                    [&](const auto& channel) { return channel.get() == &caller; });
    std::unique_ptr<PacketChannel> channel = std::move(*place);
    callers_.erase(place);
    return channel;
}

void Gateway::greeted(PacketChannel& caller, const std::string& name) {
    std::unique_ptr<PacketChannel> channel = leave(caller);
    if (station_) {
        ports_.log("turned away a second station (" + name + ")");
        channel->close("this gateway has a station");
        return;
    }
    alone_.setEnabled(false);
    station_ = std::move(channel);
    station_->onPacket = [this](const wire::Packet& packet) {
        if (kindOf(packet) == PacketKind::frame) return shutDown("the station sent a frame");
        if (kindOf(packet) == PacketKind::operation) obey(packet);
    };
    station_->onEnded = [this](const std::string& why) { shutDown("the station " + why); };
    ports_.log("the station has connected (" + name + ")");
}

void Gateway::obey(const wire::Packet& operation) {
    if (operation.has_write_power_byte()) powerByte_ = operation;
    robot_.send(operation);
}

void Gateway::deliver(const wire::Packet& frame) {
    if (!station_) return;
    bool taken = false;
    if (frame.has_motor_frame()) {
        wire::Packet copy = frame;
        auto* motor = copy.mutable_motor_frame();
        motor->set_encoder_speed_left(passable(motor->encoder_speed_left()));
        motor->set_encoder_speed_right(passable(motor->encoder_speed_right()));
        taken = station_->send(copy);
    } else {
        taken = station_->send(frame);
    }
    if (!taken && !stationSlow_) ports_.log("the station does not take its frames; they are dropped");
    stationSlow_ = !taken;
}

void Gateway::close() {
    shutDown("asked to close");
}

void Gateway::shutDown(const std::string& why, int status) {
    if (ended_) return;
    ended_ = true;
    ports_.log("ends: " + why);
    ports_.window.hide();
    waiting_.setEnabled(false);
    alone_.setEnabled(false);
    listener_.reset();
    if (kind_.role == wire::ROLE_MOT) {
        robot_.send(suspendDrive(0));
        robot_.send(suspendDrive(1));
    }
    robot_.stop(why);
    if (station_) station_->close(why);
    ports_.end(status);
}

}  // namespace quorrin
