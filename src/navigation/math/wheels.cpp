#include "navigation/math/wheels.h"

#include <cmath>

#include "base/rounding.h"
#include "session/record/general_constants.h"

namespace quorrin {

using namespace GeneralConstants;

namespace {
constexpr double kWheelDiameter_m = 0.15;
}

Integer radPerSecToCounts(double rate) {
    return roundToInteger(rate * kCountsPerTurn / kTwoPi);
}

double leftWheelRate(double forwardSpeed, double turnSpeed) {
    return (2.0 * forwardSpeed - kWheelBase_m * turnSpeed) / kWheelDiameter_m;
}

double rightWheelRate(double forwardSpeed, double turnSpeed) {
    return (2.0 * forwardSpeed + kWheelBase_m * turnSpeed) / kWheelDiameter_m;
}

Long spinTarget(Integer encoder, double headingChange) {
    const double counts = headingChange * kCountsPerTurn * kWheelBase_m / 2.0 / kWheelRadius_m / kTwoPi;
    const Long target = roundToLong(static_cast<double>(encoder) + counts);
    return Long(target.value() % kEncoderModulus);
}

double encoderChange(double now, double previous) {
    const double change = now - previous;
    if (std::fabs(change) <= kEncoderJumpLimit) return change;
    return now < previous ? kEncoderModulus - previous + now : now - previous - kEncoderModulus;
}

double countsToMetres(double counts) {
    return counts / kCountsPerTurn * kTwoPi * kWheelRadius_m;
}

}  // namespace quorrin
