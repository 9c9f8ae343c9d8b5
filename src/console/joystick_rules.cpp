#include "console/joystick_rules.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr std::size_t kTrigger = 0;
constexpr std::size_t kCentreKey = 1;
constexpr std::size_t kAvoidanceKey = 2;
constexpr std::size_t kMouthUpKey = 3;
constexpr std::size_t kMouthDownKey = 5;
constexpr std::size_t kShiftKey = 6;

constexpr int kStep = 100;
constexpr int kHeadCentre = 2000;

}  // namespace

bool takesOver(const JoystickState& stick) {
    return stick.buttons[kTrigger] && stick.buttons[kShiftKey];
}

bool givesBack(const JoystickState& stick) {
    return stick.buttons[kCentreKey] && stick.buttons[kShiftKey];
}

void commandLevels(const JoystickState& stick, LevelValues& levels) {
    constexpr int kFullBrake = 0;
    constexpr int kReleased = 10000;
    levels.brakeLevel = stick.buttons[kTrigger] ? kFullBrake : kReleased;
    levels.gasLevel = stick.slider;
    levels.steeringLevel = stick.x;
    levels.joystickY = stick.y;
}

void centreHead(const JoystickState& stick, ServoValues& servos) {
    if (!stick.buttons[kCentreKey]) return;
    servos.headCmdUpDown = kHeadCentre;
    servos.headCmdLeftRight = kHeadCentre;
}

void flipAvoidance(const JoystickState& stick, LevelValues& levels) {
    if (stick.buttons[kAvoidanceKey]) levels.caEnabled = !levels.caEnabled;
}

void moveMouth(const JoystickState& stick, ServoValues& servos) {
    constexpr int kOpenBelow = 3600;
    constexpr int kCloseFrom = 2801;
    if (stick.buttons[kMouthUpKey] && servos.mouthCmd < kOpenBelow) servos.mouthCmd += kStep;
    if (stick.buttons[kMouthDownKey] && servos.mouthCmd >= kCloseFrom) servos.mouthCmd -= kStep;
}

void moveHead(const JoystickState& stick, ServoValues& servos) {
    constexpr int kUpBelow = 3400;
    constexpr int kRightBelow = 3900;
    constexpr int kBackAbove = 100;
    switch (stick.pov) {
        case 0:
            if (servos.headCmdUpDown < kUpBelow) servos.headCmdUpDown += kStep;
            break;
        case 9000:
            if (servos.headCmdLeftRight < kRightBelow) servos.headCmdLeftRight += kStep;
            break;
        case 18000:
            if (servos.headCmdUpDown > kBackAbove) servos.headCmdUpDown -= kStep;
            break;
        case 27000:
            if (servos.headCmdLeftRight > kBackAbove) servos.headCmdLeftRight -= kStep;
            break;
        default:  // centred, or in between
            break;
    }
}

void chooseGear(const JoystickState& stick, int buttonCount, JoystickValues& values) {
    struct Gear {
        int button;
        int gear;
    };
    constexpr Gear kGears[] = {{6, 1}, {7, 2}, {8, 3}, {9, 10}};
    const int present = std::min(buttonCount, kJoystickButtons);
    for (const Gear& entry : kGears) {
        if (entry.button < present && stick.buttons[static_cast<std::size_t>(entry.button)])
            values.joystickGear = entry.gear;
    }
}

}  // namespace quorrin
