// The two drive channels: what they were told, and the wheel speeds that follow from it.
//
// Not the wheels themselves (Body moves those, as far as the world lets it). Speeds out are metres per
// second, forward positive on both sides; commands in are encoder counts with the mounting's sign: the left
// drive is mirrored, so a forward roll has a negative left and a positive right count. Times are milliseconds
// since the robot's start.
//
// A channel is in velocity or in position mode, and it may be suspended: then its wheel brakes and holds
// nothing. A command of the mode in force ends the suspension; a command of the other mode is ignored. A
// velocity command is a lease: unless it is given anew it runs out after 2 s and the wheel stands. Safety
// limits stand here, whatever is commanded.
//
// Dead man: connected but unheard for kDeadManMs, or not connected, both channels are suspended; the wheels
// then stand within 500 ms of the last word. Hearing again does not start them, the next command does.
#pragma once

#include <array>
#include <cstdint>

namespace quorrin {

constexpr std::int64_t kDeadManMs = 350;  // braking takes up to 0.14 s more
constexpr std::int64_t kVelocityLeaseMs = 2000;

enum class DriveMode : std::uint8_t { position, velocity };

// How it is now: what the wheels are asked for, and whether somebody asks.
struct WheelTargets {
    std::array<double, 2> speed_mps{};
    std::array<bool, 2> powered{};
};

class Drives {
  public:
    // A gateway has come: velocity mode, standing.
    void connect(std::int64_t nowMs);
    void disconnect();
    void heard(std::int64_t nowMs) { heardMs_ = nowMs; }

    void setMode(int channel, int mode);  // 1 position, 2 velocity; others are ignored
    void setVelocity(int channel, int countsPerSecond, std::int64_t nowMs);
    // The wheel goes the shorter way round to that encoder reading; `encoder` is the count now, unwrapped.
    void moveTo(int channel, int position, int durationMs, double encoder, std::int64_t nowMs);
    void suspend(int channel);
    void suspendBoth();

    // One step of the ramps. `encoders` are the counts now, unwrapped.
    WheelTargets step(std::int64_t nowMs, double dt_s, const std::array<double, 2>& encoders);

    DriveMode mode(int channel) const { return channels_.at(index(channel)).mode; }
    bool suspended(int channel) const { return channels_.at(index(channel)).suspended; }
    // "velocity", "position" or "suspended"
    const char* modeText(int channel) const;

  private:
    struct Channel {
        DriveMode mode = DriveMode::velocity;
        bool suspended = true;
        double commanded_mps = 0;  // velocity mode
        std::int64_t leaseEndsMs = 0;
        double goal = 0;  // position mode: unwrapped count
        std::int64_t moveEndsMs = 0;
        bool moving = false;
        double ramp_mps = 0;
    };

    static std::size_t index(int channel) { return channel == 0 ? 0 : 1; }
    double wanted(Channel& channel, std::size_t side, std::int64_t nowMs, double encoder) const;

    std::array<Channel, 2> channels_;
    bool connected_ = false;
    std::int64_t heardMs_ = 0;
};

}  // namespace quorrin
