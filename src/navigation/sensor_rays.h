// From ranges to cells: every reading clears its ray and, when near enough, marks the cell that it hit.
//
// IR sensors 1 to 10 and sonars 1 to 3 feed the map. Ranges are taken from the robot's centre; the sensor's
// radial offset only shifts the limits. Readings at the sensor's own foot (negative ones too) are skipped.
//
// Errors: ProgramError for a hit cell that does not fit an Integer.
#pragma once

#include <cstddef>

#include "session/record/map_values.h"
#include "session/record/pose_values.h"
#include "session/record/sensor_values.h"

namespace quorrin {

// Both limits are measured from the sensor's own offset.
struct RangeLimits {
    double lower_m;    // below: no information
    double marking_m;  // beyond: the ray clears and marks nothing
};

constexpr RangeLimits kIrLimits{0.1, 0.53};
constexpr RangeLimits kSonarLimits{0.02, 2.0};
constexpr std::size_t kMapSonars = 3;  // the rear one does not feed the map

// `robotCellX`, `robotCellY`: the cell that the robot is in.
void castRanges(MapValues& map, const PoseValues& pose, const SensorValues& sensors, Integer robotCellX,
                Integer robotCellY);

}  // namespace quorrin
