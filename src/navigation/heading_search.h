// Where to head: the nearest way past what blocks the bearing to the target.
//
// Works on 36 sectors of 10 degrees that rise with the angle, sector 1 beginning at -pi. A blocked goal
// sector leads to the middle of a narrow opening nearby, or 60 degrees into a wide one; a free goal sector is
// left only when an obstacle stands close beside it. Each side is searched 18 steps at most. No state.
//
// Errors: ProgramError for sector arithmetic that does not fit, a sector outside the histogram, and a
// clearance box that holds no number (the boxes are read only where the search needs them).
#pragma once

#include <cstdint>

#include "base/checked_int.h"
#include "session/record/map_values.h"
#include "session/record/navigation_controls.h"

namespace quorrin {

enum class HeadingOutcome : std::uint8_t {
    openFound,     // goal blocked, detour found
    totallyOpen,   // nothing near
    openNoChange,  // obstacles far enough from the goal's direction
    openChange,    // shifted away from the nearer obstacle
    tooNarrow,     // goal free, gap too narrow: stuck
    noOpening      // no free sector: stuck, and the drives are to be stopped
};

struct HeadingChoice {
    HeadingOutcome outcome;
    double heading;     // radians, not wrapped
    double displayDeg;  // the detour in degrees, or 380 no change, -380 no opening, -370 too narrow
};

// The word that CAStatus takes for an outcome.
const char* outcomeWord(HeadingOutcome outcome);

// A sector number brought to 1 to 36; inputs below -35 are not, their remainder keeps its sign.
Integer wrapSector(Integer sector);

// The sector of a heading in radians.
Integer sectorOf(double heading);

// polarHistogram of the heading's sector.
Integer densityTowards(double heading, const MapValues& map);

HeadingChoice searchHeading(double bearing, const MapValues& map, const NavigationControls& controls);

}  // namespace quorrin
