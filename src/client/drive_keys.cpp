#include "client/drive_keys.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr std::size_t kTrigger = 0;
constexpr std::size_t kCentreKey = 1;
constexpr std::size_t kAvoidanceKey = 2;
constexpr std::size_t kMouthOpenKey = 3;
constexpr std::size_t kMouthCloseKey = 5;
constexpr std::size_t kShiftKey = 6;
constexpr int kHatUp = 0;
constexpr int kHatRight = 9000;
constexpr int kHatDown = 18000;
constexpr int kHatLeft = 27000;

int steppedGas(int gas, const HeldKeys& keys) {
    if (keys.brake || !keys.forward) return kNoGas;
    return gas > kGuardedGas ? kGuardedGas - kGasStep : std::max(gas - kGasStep, 0);
}

int steppedSteering(int steering, const HeldKeys& keys) {
    if (keys.left == keys.right) return kStraight;
    if (keys.left) return std::min(steering, kStraight) - kSteeringStep;
    return std::max(steering, kStraight) + kSteeringStep;
}

int trim(bool more, bool less) {
    return (more ? kTrimStep : 0) - (less ? kTrimStep : 0);
}

HeldKeys trimsOf(const JoystickState& stick) {
    HeldKeys keys;
    keys.headUp = stick.pov == kHatUp;
    keys.headRight = stick.pov == kHatRight;
    keys.headDown = stick.pov == kHatDown;
    keys.headLeft = stick.pov == kHatLeft;
    keys.mouthOpen = stick.buttons[kMouthOpenKey];
    keys.mouthClose = stick.buttons[kMouthCloseKey];
    return keys;
}

}  // namespace

DriveFields trimByKeys(DriveFields levels, const HeldKeys& keys) {
    levels.headUpDown += trim(keys.headUp, keys.headDown);
    levels.headLeftRight += trim(keys.headRight, keys.headLeft);
    levels.mouth += trim(keys.mouthOpen, keys.mouthClose);
    return limited(levels);
}

DriveFields stepByKeys(DriveFields levels, const HeldKeys& keys) {
    levels.gas = steppedGas(levels.gas, keys);
    levels.steering = steppedSteering(levels.steering, keys);
    levels.brake = keys.brake ? kBrakeFull : kBrakeReleased;
    return trimByKeys(levels, keys);
}

DriveFields stepByStick(DriveFields levels, const JoystickState& before, const JoystickState& now,
                        bool drives) {
    if (drives) {
        levels.steering = now.x;
        levels.gas = stickRests(now) ? kNoGas : now.slider;
        levels.brake = now.buttons[kTrigger] ? kBrakeFull : kBrakeReleased;
    }
    if (now.buttons[kCentreKey]) levels.headUpDown = levels.headLeftRight = kHeadAhead;
    if (now.buttons[kAvoidanceKey] && !before.buttons[kAvoidanceKey])
        levels.avoidance = levels.avoidance == 1 ? 0 : 1;
    return trimByKeys(levels, trimsOf(now));
}

bool stickTakesOver(const JoystickState& stick) {
    return stick.buttons[kTrigger] && stick.buttons[kShiftKey];
}

bool stickLetsGo(const JoystickState& stick) {
    return stick.buttons[kCentreKey] && stick.buttons[kShiftKey];
}

bool stickRests(const JoystickState& stick) {
    return stick.slider > kGuardedGas;
}

bool stickTrims(const JoystickState& stick) {
    return trimsOf(stick).trims();
}

}  // namespace quorrin
