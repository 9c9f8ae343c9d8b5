#include "console/nearest_range.h"

#include <cmath>

namespace quorrin {

namespace {

constexpr std::size_t kInfrareds = 7;  // the other three look where the head looks
constexpr std::size_t kSonars = 4;
constexpr double kFrontHalf_rad = 0.6;
constexpr double kSideEnd_rad = 2.4;

}  // namespace

std::optional<double> nearestRange(const SensorValues& sensors, RangeSide side) {
    const double from = side == RangeSide::left    ? kFrontHalf_rad
                        : side == RangeSide::right ? -kSideEnd_rad
                                                   : -kFrontHalf_rad;
    const double to = side == RangeSide::left    ? kSideEnd_rad
                      : side == RangeSide::right ? -kFrontHalf_rad
                                                 : kFrontHalf_rad;
    std::optional<double> best;
    // 0 is a range that was never measured.
    const auto offer = [&](double range, double bearing) {
        if (bearing < from || bearing > to || !(range > 0) || !std::isfinite(range)) return;
        if (!best || range < *best) best = range;
    };
    for (std::size_t i = 0; i < kInfrareds; ++i) offer(sensors.irRange[i], sensors.irAngle[i]);
    for (std::size_t i = 0; i < kSonars; ++i) offer(sensors.sonarRange[i], sensors.sonarAngle[i]);
    return best;
}

}  // namespace quorrin
