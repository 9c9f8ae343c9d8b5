// Is a wheel pushing without turning? The measure is drive current per unit of wheel speed, low-pass
// filtered, with a small up-and-down count behind it.
//
// Counts rise by 3 over the limit and fall by 1 under it, within 0 to 6; above 5 the side is stuck. So two
// ticks over the limit in a row hold, one under it releases. Amperes over encoder units per second.
//
// Errors: ProgramError for a wheel speed of exactly -1 (division by zero).
#pragma once

#include "base/checked_int.h"
#include "session/record/drive_values.h"
#include "session/record/sensor_values.h"

namespace quorrin {

struct StuckState {
    double filteredRatioLeft = 0;
    double filteredRatioRight = 0;
    Integer stuckCountLeft;
    Integer stuckCountRight;
};

// Updates filters, counts, stuckLeft, stuckRight and inStuck; returns inStuck.
bool detectStuck(DriveValues& drive, const SensorValues& sensors, StuckState& state);

}  // namespace quorrin
