#include "gateway/robot_side.h"

#include <algorithm>
#include <utility>

namespace quorrin {

namespace {

constexpr std::int64_t kFirstPauseMs = 100;
constexpr std::int64_t kLongestPauseMs = 2000;
constexpr std::int64_t kConnectMs = 3000;
constexpr std::int64_t kGreetingMs = 2000;
constexpr std::int64_t kSilenceMs = 2000;
constexpr std::int64_t kSteadyMs = 2000;
constexpr std::int64_t kHeartbeatMs = 100;

void startOnce(TimerMM& timer, std::int64_t ms) {
    timer.setEnabled(false);
    timer.setPeriodic(false);
    timer.setInterval(ms);
    timer.setEnabled(true);
}

}  // namespace

RobotSide::RobotSide(Clock& clock, Streams& streams, const GatewayKind& kind,
                     std::function<RobotAddress()> where, std::function<void(const std::string&)> log)
    : clock_(clock),
      streams_(streams),
      kind_(kind),
      where_(std::move(where)),
      log_(std::move(log)),
      retry_(clock, [this] { attempt(); }),
      deadline_(clock),
      heartbeat_(clock, [this] { watch(); }),
      pauseMs_(kFirstPauseMs) {
    heartbeat_.setInterval(kHeartbeatMs);
}

void RobotSide::start() {
    attempt();
}

void RobotSide::attempt() {
    const RobotAddress robot = where_();
    if (!robot.fault.empty()) return failed(robot.fault);
    place_ = robot.address + " port " + std::to_string(robot.port);
    deadline_.setHandler([this] { failed("no answer from " + place_ + " within 3 s"); });
    startOnce(deadline_, kConnectMs);
    connecting_ =
        streams_.connectTcp(robot.address, robot.port, [this](auto stream, const std::string& error) {
            if (!stream) return failed("cannot reach the robot at " + place_ + ": " + error);
            connected(std::move(stream));
        });
}

void RobotSide::connected(std::unique_ptr<ByteStream> stream) {
    channel_ = std::make_unique<PacketChannel>(std::move(stream), kind_.role, kind_.program);
    channel_->onGreeted = [this](const std::string& name) {
        deadline_.setEnabled(false);
        upSinceMs_ = heardMs_ = clock_.nowMs();
        heardBytes_ = channel_->bytesHeard();
        heartbeat_.setEnabled(true);
        tell("connected to the robot at " + place_ + " (" + name + ")");
        if (onUp) onUp();
    };
    channel_->onPacket = [this](const wire::Packet& packet) {
        if (kindOf(packet) == PacketKind::operation)
            return failed("dropped the robot at " + place_ + ": it sent an operation");
        if (kindOf(packet) == PacketKind::frame && onFrame) onFrame(packet);
    };
    channel_->onEnded = [this](const std::string& why) {
        failed("dropped the robot at " + place_ + ": it " + why);
    };
    deadline_.setHandler(
        [this] { failed("dropped the robot at " + place_ + ": it sent no Hello within 2 s"); });
    startOnce(deadline_, kGreetingMs);
}

void RobotSide::failed(const std::string& why) {
    const bool steady = heartbeat_.enabled() && clock_.nowMs() - upSinceMs_ >= kSteadyMs;
    if (steady) pauseMs_ = kFirstPauseMs;
    tell(why + "; trying again");
    deadline_.setEnabled(false);
    heartbeat_.setEnabled(false);
    connecting_.reset();
    channel_.reset();
    startOnce(retry_, pauseMs_);
    pauseMs_ = std::min(pauseMs_ * 2, kLongestPauseMs);
}

void RobotSide::watch() {
    if (channel_->bytesHeard() != heardBytes_) {
        heardBytes_ = channel_->bytesHeard();
        heardMs_ = clock_.nowMs();
    }
    if (clock_.nowMs() - heardMs_ >= kSilenceMs)
        return failed("dropped the robot at " + place_ + ": it was silent for 2 s");
    wire::Packet beat;
    beat.mutable_heartbeat();
    channel_->send(beat);
}

void RobotSide::send(const wire::Packet& operation) {
    if (up()) channel_->send(operation);
}

void RobotSide::stop(const std::string& reason) {
    if (channel_) channel_->close(reason);
    retry_.setEnabled(false);
    deadline_.setEnabled(false);
    heartbeat_.setEnabled(false);
    connecting_.reset();
}

void RobotSide::tell(const std::string& line) {
    if (line == lastLine_) return;
    lastLine_ = line;
    log_(line);
}

}  // namespace quorrin
