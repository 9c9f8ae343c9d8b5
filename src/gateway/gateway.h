// One gateway: a station on one side, the robot on the other, operations one way and frames the other.
//
// Life: it claims its window; when another one of its kind is alive it ends at once, when that one is closing
// it waits (10 s at most). Then it listens for its station by local name and connects to the robot. One
// station at a time; a second one is told goodbye. It ends, by one way only, shutDown(): asked to close
// (close()), its station went away or sent rubbish, or no station program runs for 1 s while none has
// connected. Ending a motion gateway suspends both drives before it says goodbye.
//
// Operations are dropped while the robot is away, frames while no station is there or while it does not take
// them. Nothing is queued for later, but a robot that connects is told the last power byte: it is a setting,
// and the station writes it only when it changes. A wheel speed of exactly -1 is passed on as -2: the station
// divides by the speed plus 1. It keeps no other state.
//
// Errors: lines on the log. `end` is called once with the exit status (0; 1 when it could not work at all).
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "gateway/gateway_kind.h"
#include "gateway/robot_side.h"
#include "platform/files.h"
#include "platform/streams.h"
#include "platform/timer_mm.h"
#include "platform/window.h"
#include "wire/packet_channel.h"

namespace quorrin {

struct GatewayPorts {
    Clock& clock;
    Streams& streams;
    Files& files;
    Window& window;
    std::string profileFolder;
    // Does a station program of the same user and data folder run?
    std::function<bool()> stationRuns;
    std::function<void(const std::string& line)> log;
    std::function<void(int status)> end;
};

class Gateway {
  public:
    Gateway(const GatewayPorts& ports, const GatewayKind& kind);

    void start();
    // As by its window's close button, or SIGTERM.
    void close();

  private:
    void begin();
    void lookForStation();
    void called(std::unique_ptr<ByteStream> stream);
    void greeted(PacketChannel& caller, const std::string& name);
    // Takes the caller off the list.
    std::unique_ptr<PacketChannel> leave(PacketChannel& caller);
    void obey(const wire::Packet& operation);
    void deliver(const wire::Packet& frame);
    void shutDown(const std::string& why, int status = 0);

    GatewayPorts ports_;
    GatewayKind kind_;
    RobotSide robot_;
    std::unique_ptr<Listener> listener_;
    std::vector<std::unique_ptr<PacketChannel>> callers_;  // without a Hello as yet
    std::unique_ptr<PacketChannel> station_;
    std::optional<wire::Packet> powerByte_;
    TimerMM waiting_;  // for the other gateway to be gone
    TimerMM alone_;    // looks whether a station program runs, until one has connected
    int waits_ = 0;
    int timesAlone_ = 0;
    bool ended_ = false;
    bool stationSlow_ = false;
};

}  // namespace quorrin
