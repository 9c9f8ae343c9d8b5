// Keys and joystick to levels: pure functions, one step at a time. Who calls them, and how often, is
// remote_driver.h's.
//
// Keys. Forward gives more gas with each step, brake takes it all and brakes, left and right turn further
// with each step; straight again as soon as neither or both are held. Head and mouth go on by kTrimStep with
// each step and stay. Gas above kGuardedGas would move the robot slowly and without its obstacle avoidance,
// so no key and no stick asks for it: there is none, or kGuardedGas or more.
//
// Joystick, laid out as at the station: x steers, the slider is the gas, the trigger (0) the brake, hat and
// buttons move head (hat; 1 centres it) and mouth (3 opens, 5 closes), 2 flips the avoidance as it goes down.
// Trigger with 6 takes over, 1 with 6 lets go. Driving tail first is not in a drive command.
#pragma once

#include "client/drive_fields.h"
#include "platform/joysticks.h"

namespace quorrin {

constexpr int kGuardedGas = 9000;
constexpr int kGasStep = 500;
constexpr int kSteeringStep = 500;
constexpr int kTrimStep = 100;

struct HeldKeys {
    bool forward = false;
    bool brake = false;
    bool left = false;
    bool right = false;
    bool headUp = false;
    bool headDown = false;
    bool headLeft = false;
    bool headRight = false;
    bool mouthOpen = false;
    bool mouthClose = false;

    bool drives() const { return forward || brake || left || right; }
    bool trims() const { return headUp || headDown || headLeft || headRight || mouthOpen || mouthClose; }
    bool operator==(const HeldKeys&) const = default;
};

// One step on from those levels.
DriveFields stepByKeys(DriveFields levels, const HeldKeys& keys);
// Head and mouth alone.
DriveFields trimByKeys(DriveFields levels, const HeldKeys& keys);

// What the stick says now, `before` being its state one step ago. The levels of driving only while it
// `drives`; head, mouth and avoidance always.
DriveFields stepByStick(DriveFields levels, const JoystickState& before, const JoystickState& now,
                        bool drives);
bool stickTakesOver(const JoystickState& stick);
bool stickLetsGo(const JoystickState& stick);
// The slider asks for no gas.
bool stickRests(const JoystickState& stick);
// A button or the hat is down that moves on with each step.
bool stickTrims(const JoystickState& stick);

}  // namespace quorrin
