// A person who drives: keys, joystick and sliders of a window, turned into drive commands.
//
// A command goes out when the levels have changed, never again for the same levels, and never later than the
// moment: without a command connection nothing is sent and nothing kept. Held keys and the stick's hat go on
// by a step each kStepMs.
//
// Letting go (no driving key is held, standStill() for a lost focus or a lost joystick) sends the neutral
// command alone: the robot stands and is still held, since it would else wander off by itself. release() and
// quit() send neutral, then "Clos".
//
// Nothing that is held down goes on by itself: after standStill(), after release() and the mode key, and
// after the command connection was lost or made anew, the stick drives only once it has been at rest, and
// keys only once they have been let go. When a connection that was lost while the robot rolled is back, the
// first thing sent is the neutral command, since the robot may still roll under the last one.
//
// Keys go before the stick: while a driving key is held the stick does not drive.
//
// Clock and link must outlive it.
#pragma once

#include <string>

#include "client/drive_keys.h"
#include "client/drive_sender.h"
#include "platform/timer_mm.h"

namespace quorrin {

class RemoteDriver {
  public:
    static constexpr std::int64_t kStepMs = 100;

    RemoteDriver(Clock& clock, RemoteLink& link);
    RemoteDriver(const RemoteDriver&) = delete;
    RemoteDriver& operator=(const RemoteDriver&) = delete;

    const DriveFields& levels() const { return levels_; }
    bool connected() const { return link_.connected(RemoteChannel::command); }
    bool holds() const { return sender_.holds(); }
    bool stickDrives() const { return stickDrives_; }
    // Keys or stick have to be let go first.
    bool waitsForRest() const { return keysMustRest_ || stickMustRest_; }
    const KnownMode& knownMode() const { return sender_.knownMode(); }
    // What release() will make of the robot.
    std::string releaseText() const;

    // All driving and head keys as they are held now; no auto-repeat.
    void setKeys(const HeldKeys& keys);
    void setStick(const JoystickState& stick);
    // Sliders: levels held to their scales.
    void setHeadUpDown(int value);
    void setHeadLeftRight(int value);
    void setMouth(int value);
    void setAvoidance(bool on);
    void centreHead();

    // Focus or joystick lost, the window hidden: neutral, and what is held down counts for nothing. A
    // joystick that was lost takes over anew.
    void standStill();
    void stickLost();
    void modeKey();
    // The release button. Nothing unless this client holds the robot.
    void release();
    // As release(). Whoever owns the link stops it once this is not releasing() any more: within a second.
    void quit() { release(); }
    bool releasing() const { return sender_.releasing(); }

    // Levels, hold or known mode may have changed.
    Listeners<> onChange;

  private:
    HeldKeys keysThatCount() const;
    // On to the levels that keys and stick ask for now.
    void step(const JoystickState& stickBefore);
    void take(const DriveFields& levels);
    // Levels that stand, and all that is held has to be let go first.
    void startAnew();
    void linkChanged(RemoteChannel channel);

    RemoteLink& link_;
    DriveSender sender_;
    TimerMM timer_;
    DriveFields levels_;
    HeldKeys keys_;
    JoystickState stick_;
    bool stickDrives_ = false;
    bool keysMustRest_ = false;
    bool stickMustRest_ = false;
};

}  // namespace quorrin
