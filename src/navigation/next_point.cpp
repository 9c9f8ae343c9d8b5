#include "navigation/next_point.h"

#include "base/number_text.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

constexpr int kSearchUpTo = 9000;
constexpr int kReleasedAbove = 9000;
constexpr int kTailFirstFrom = 6001;
constexpr double kFullSteering_rad = 0.5235987666666667;

}  // namespace

SteeringCommand readCommand(const LevelValues& levels, const NavigationControls& controls) {
    if (!levels.useWanderInput) return {levels.steeringLevel, levels.gasLevel, levels.brakeLevel};
    return {5000, wholeToInteger(controls.txtWonderSpeed.text()), 10000};
}

SteeringTarget steer(const SteeringCommand& command, Integer joystickY, DriveValues& drive) {
    const double x = command.x;
    const double y = command.y;
    drive.workingGas = command.y;
    // A standing robot does not search at all; this has the last word over the avoidance switch.
    drive.vfhActive = command.y <= kSearchUpTo;
    double steerFraction = 0;
    double speedFraction = 0;
    if (command.z > kReleasedAbove) {
        steerFraction = (5000.0 - x) / 5000.0;
        speedFraction = (10000.0 - y) * 0.65 / 10000.0;
    }
    double offset = steerFraction * kFullSteering_rad;
    drive.reverseDrive = joystickY >= kTailFirstFrom;
    if (drive.reverseDrive) {
        offset = GeneralConstants::kPi - offset;
        speedFraction /= 2.0;
    }
    return {offset, speedFraction, steerFraction};
}

}  // namespace quorrin
