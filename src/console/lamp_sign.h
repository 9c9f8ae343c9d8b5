// What a status lamp says, as a word and a shape, so that nothing is told by its colour alone. Reads the
// lamp's colour, its flash flag and the measurement behind it.
//
// A lamp keeps its colour when its flag is cleared, until something paints it anew: such a lamp
// is told as what it was, not as what it is.
#pragma once

#include <string>

#include "console/glance.h"

namespace quorrin {

// What a lamp is drawn as, besides its colour.
enum class LampShape { blank, tick, bar, exclamation, cross, bolt, plug, question };

struct LampSign {
    std::string word;
    LampShape shape = LampShape::blank;
    Tone tone = Tone::off;
};

// `element` of shpBatteryStatus: 0 battery 1, 1 battery 2, 2 DC input, 3 charging, 4 temperature, 5 left
// drive, 6 right drive. A ProgramError for others.
LampSign lampSign(const PublicValues& values, const frmGUI& gui, int element);

// The lamp is in the red or light green of its blinking, or just red.
bool lampWarns(const Shape& lamp);

// Has a power frame come since the station's start or the last recovery?
bool powerMeasured(const LinkValues& link);

}  // namespace quorrin
