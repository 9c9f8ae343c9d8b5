// The certainty grid: cells that rise where a reading hit, fall along its ray, and fade with time.
//
// Cells are 0.1 m square, numbered 1 to 160 in x and y, cell 80 holds the world's origin; the grid never
// scrolls. Counts are 0 to 15. Grid arithmetic is 16 bit and checked.
//
// Errors: a ProgramError inside markCell or clearRay ends that call only; the work done so far stands.
// cellOf throws for a coordinate whose cell does not fit an Integer.
#pragma once

#include "base/checked_int.h"
#include "base/rounding.h"
#include "session/record/map_values.h"

namespace quorrin {

constexpr int kCertaintyCeiling = 15;

// The cell number of a world coordinate in metres; may lie outside the grid.
inline Integer cellOf(double coordinate_m) {
    return roundToInteger(coordinate_m * 10.0 + 80.0);
}

void clearGrid(MapValues& map);

// Raises a cell that was hit: by 3, or at once to the ceiling among marked neighbours. Border cells are never
// marked. True if done.
bool markCell(MapValues& map, Integer x, Integer y);

// Lowers the cells from (x0, y0) up to, but not including, (x1, y1) by 1, walking along the longer axis (x on
// a tie). A difference of 0 or 1 along that axis visits nothing. A cell outside the grid ends the walk.
void clearRay(MapValues& map, Integer x0, Integer y0, Integer x1, Integer y1);

// Every cell above 0 drops by 1.
void fadeGrid(MapValues& map);

}  // namespace quorrin
