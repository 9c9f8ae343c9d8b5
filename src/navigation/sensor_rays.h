// From ranges to cells: every reading clears its ray and, when near enough, marks the cell that it hit.
//
// IR sensors 1 to 10 and sonars 1 to 3 feed the map. Ranges are taken from the robot's centre; the sensor's
// radial offset only shifts the limits. Readings at the sensor's own foot (negative ones too) are skipped.
//
// Errors: ProgramError for a hit cell that does not fit an Integer.
#pragma once

#include "session/record/map_values.h"
#include "session/record/pose_values.h"
#include "session/record/sensor_values.h"

namespace quorrin {

// `robotCellX`, `robotCellY`: the cell that the robot is in.
void castRanges(MapValues& map, const PoseValues& pose, const SensorValues& sensors, Integer robotCellX,
                Integer robotCellY);

}  // namespace quorrin
