#include "navigation/stuck_detector.h"

#include <cmath>

#include "base/checked_real.h"

namespace quorrin {

namespace {

constexpr int kHoldAbove = 5;
constexpr int kHighestCount = 6;

// The 1.0 keeps a wheel at rest from dividing by zero; a speed of exactly -1 is not protected.
double filtered(double ratio, double current, double speed) {
    return 0.8 * ratio + 0.2 * std::fabs(quotient(current, speed + 1.0, "stuck ratio"));
}

Integer counted(Integer count, bool overLimit) {
    count += overLimit ? Integer(3) : Integer(-1);
    if (count > kHoldAbove) return kHighestCount;
    if (count < 1) return 0;
    return count;
}

}  // namespace

bool detectStuck(DriveValues& drive, const SensorValues& sensors, StuckState& state) {
    state.filteredRatioLeft =
        filtered(state.filteredRatioLeft, sensors.motorCurrentLeft, sensors.wheelSpeedLeft);
    state.filteredRatioRight =
        filtered(state.filteredRatioRight, sensors.motorCurrentRight, sensors.wheelSpeedRight);
    state.stuckCountLeft = counted(state.stuckCountLeft, state.filteredRatioLeft > drive.stuckRatioLimit);
    state.stuckCountRight = counted(state.stuckCountRight, state.filteredRatioRight > drive.stuckRatioLimit);
    drive.stuckLeft = state.stuckCountLeft > kHoldAbove;
    drive.stuckRight = state.stuckCountRight > kHoldAbove;
    drive.inStuck = drive.stuckLeft || drive.stuckRight;
    return drive.inStuck;
}

}  // namespace quorrin
