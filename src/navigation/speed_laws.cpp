#include "navigation/speed_laws.h"

#include <algorithm>
#include <cmath>

#include "base/checked_real.h"

namespace quorrin {

namespace {

constexpr double kOnHeading_rad = 0.025;
constexpr double kFullSpeedError_rad = 0.25;
constexpr double kTurnGain = 4.0;
constexpr double kLeastTurnGain = 0.3;
constexpr double kNearPerMetre = 5.0;  // 1 at 0.2 m

}  // namespace

BodySpeed speedLaws(const SpeedInput& input) {
    const double error = std::fabs(input.headingError);
    double speedFactor = 1.0;
    double turnGain = 0;
    if (error > kOnHeading_rad) {
        speedFactor = std::min(kFullSpeedError_rad / error, 1.0);
        turnGain = kTurnGain;
    }
    const double distanceScale = std::fabs(input.targetDistance) * kNearPerMetre;
    const bool near = !(distanceScale > 1.0);
    if (near) turnGain *= distanceScale;
    if (turnGain < kLeastTurnGain) turnGain = kLeastTurnGain;
    if (!input.nonstop && near) speedFactor *= distanceScale;

    double turn = turnGain * input.headingError;
    if (!(std::fabs(turn) < input.turnLimit)) turn = signOf(turn) * input.turnLimit;
    return {speedFactor, speedFactor * input.travelSpeed, turn};
}

double slowedByDensity(const BodySpeed& speed, double travelSpeed, Integer density, Integer speedSaturation) {
    const double m = std::min(density, speedSaturation);
    const double share = quotient(m, speedSaturation, "speedSaturation");
    return (1.0 - share) * travelSpeed * speed.factor;
}

}  // namespace quorrin
