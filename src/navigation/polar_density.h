// From the grid round the robot to the two histograms of 36 sectors of 10 degrees: density, smoothing,
// threshold.
//
// Sector numbers rise with the angle, 1 begins at -pi. All sums are 16 bit and checked; with counts up to 15
// they cannot overflow. No state between ticks.
//
// Errors: ProgramError where a sum does not fit; what was written so far stands.
#pragma once

#include "base/checked_int.h"
#include "session/record/map_values.h"

namespace quorrin {

// polarHistogram and sectorCells from the 13 x 13 window centred on the robot's cell. Cells outside 1 to 159
// are left out.
void buildPolarHistogram(MapValues& map, Integer robotCellX, Integer robotCellY);

// Weights 1 2 3 2 1 over 9, round the circle; at the top end sectors 1 and 2 stand in for 35 and 36.
void smoothPolarHistogram(MapValues& map);

// binaryHistogram is 1 where the density is above the threshold. No hysteresis.
void thresholdHistogram(MapValues& map, Integer densityThreshold);

}  // namespace quorrin
