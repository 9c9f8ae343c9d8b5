// The script's joystick lines: what one asks for, and which stick a script needs.
#pragma once

#include <optional>

#include "replay/line_fields.h"
#include "replay/line_reader.h"
#include "replay/script_line.h"

namespace quorrin {

// {"x": 5000, "y": 5000, "slider": 10000, "pov": -1, "buttons": [0, 6]}, all of it, on the scales of
// platform/joysticks.h. "lButtons" may stand in it or beside it. Errors: ScriptError.
JoystickLine joystickLine(LineFields& fields);

// How many buttons the script's stick has: what its first line with "lButtons" says, else 12; none for a
// script that moves no stick. Reads the script to its end. Lines that cannot be used count for nothing.
std::optional<int> buttonsOfStick(LineReader& script);

}  // namespace quorrin
