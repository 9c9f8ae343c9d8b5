#include "navigation/math/angles.h"

#include <cmath>

#include "base/checked_real.h"
#include "base/rounding.h"
#include "session/record/general_constants.h"

namespace quorrin {

using namespace GeneralConstants;

double degToRad(const double& degrees) {
    return degrees * kPi / 180.0;
}

double bearingBetween(double x0, double y0, double x1, double y1) {
    const double dx = finite(x1 - x0, "bearingBetween");
    const double dy = finite(y1 - y0, "bearingBetween");
    if (dx == 0) return dy > 0 ? kHalfPi : -kHalfPi;
    const double slope = std::atan(quotient(dy, dx, "bearingBetween"));
    if (dx > 0) return slope;
    return dy <= 0 ? slope - kPi : slope + kPi;
}

void wrapPi(double& angle) {
    if (angle > kPi) angle -= kTwoPi;
    if (angle < -kPi) angle += kTwoPi;
}

double reduceTurns(double angle) {
    const double size = std::fabs(angle);
    // The rounded count is one too many beyond each half turn.
    double turns = roundToInteger(size / kTwoPi);
    if (size - turns * kTwoPi < 0) turns -= 1.0;
    return signOf(angle) * (size - turns * kTwoPi);
}

}  // namespace quorrin
