// A gateway's connection to the robot: makes it, keeps it alive, makes it anew.
//
// States: pausing (100 ms at first, twice as long after each failure, 2 s at most), connecting (3 s at most),
// greeting (2 s at most), up. A robot that is up and sends nothing for 2 s is dropped. The pause is short
// again once a connection has been up for 2 s. The address is read anew for each attempt. While up, a
// heartbeat goes out every 100 ms: the robot's dead man waits 500 ms.
//
// What went wrong is a line on the log, and the same line is not repeated until something else has happened.
// One thread, virtual or real time; owns its connection.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "gateway/gateway_kind.h"
#include "gateway/robot_address.h"
#include "platform/streams.h"
#include "platform/timer_mm.h"
#include "wire/packet_channel.h"

namespace quorrin {

class RobotSide {
  public:
    RobotSide(Clock& clock, Streams& streams, const GatewayKind& kind, std::function<RobotAddress()> where,
              std::function<void(const std::string&)> log);

    // A sound frame of this link.
    std::function<void(const wire::Packet&)> onFrame;

    // A robot has connected and said hello.
    std::function<void()> onUp;

    void start();
    bool up() const { return channel_ && channel_->greeted() && channel_->open(); }
    // Dropped when the robot is not there.
    void send(const wire::Packet& operation);
    // Says goodbye; nothing is tried any more.
    void stop(const std::string& reason);

  private:
    void attempt();
    void connected(std::unique_ptr<ByteStream> stream);
    void failed(const std::string& why);
    void watch();
    void tell(const std::string& line);

    Clock& clock_;
    Streams& streams_;
    GatewayKind kind_;
    std::function<RobotAddress()> where_;
    std::function<void(const std::string&)> log_;
    TimerMM retry_;
    TimerMM deadline_;   // of connecting and greeting
    TimerMM heartbeat_;  // also looks whether the robot is still heard
    std::unique_ptr<Connecting> connecting_;
    std::unique_ptr<PacketChannel> channel_;
    std::string place_;
    std::string lastLine_;
    std::int64_t pauseMs_;
    std::int64_t upSinceMs_ = 0;
    std::int64_t heardMs_ = 0;
    std::uint64_t heardBytes_ = 0;
};

}  // namespace quorrin
