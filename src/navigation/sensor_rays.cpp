#include "navigation/sensor_rays.h"

#include <cmath>

#include "navigation/certainty_grid.h"

namespace quorrin {

void castRanges(MapValues& map, const PoseValues& pose, const SensorValues& sensors, Integer robotCellX,
                Integer robotCellY) {
    const auto cast = [&](double range, double radius, double angle, const RangeLimits& limits) {
        if (range < radius + limits.lower_m) return;
        const double bearing = pose.robotTheta + angle;
        const Integer hitX = cellOf(pose.robotX + range * std::cos(bearing));
        const Integer hitY = cellOf(pose.robotY + range * std::sin(bearing));
        clearRay(map, robotCellX, robotCellY, hitX, hitY);
        if (!(range > radius + limits.marking_m)) markCell(map, hitX, hitY);
    };
    for (std::size_t i = 0; i < sensors.irRange.size(); ++i)
        cast(sensors.irRange[i], sensors.irRadius[i], sensors.irAngle[i], kIrLimits);
    for (std::size_t i = 0; i < kMapSonars; ++i)
        cast(sensors.sonarRange[i], sensors.sonarRadius[i], sensors.sonarAngle[i], kSonarLimits);
}

}  // namespace quorrin
