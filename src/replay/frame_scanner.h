// Reads the commonest script line, a frame with whole-number properties, without building a JSON document.
//
// It understands exactly `{"t": N, "frame": "Name", "Property": N, "SonarCm": [N, N, N, N], ...}` with any
// blanks between the parts, and says nothing about any other line, right or wrong: those go to the parser,
// which gives the same result for the lines that this one understands. A long replay consists of such lines.
#pragma once

#include <string_view>

#include "replay/script_line.h"

namespace quorrin {

// Fills time and frame of `line`; false where it does not understand (then `line` is as it was or half
// filled).
bool scanFrameLine(std::string_view text, ScriptLine& line);

}  // namespace quorrin
