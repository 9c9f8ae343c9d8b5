// From the text of a script line to what it asks for. Strict: an unknown key, kind of line, frame or
// property, a value of the wrong type, a key given twice and bytes that are no UTF-8 are errors. Kinds of
// lines that the station does not have yet are refused by name.
//
// Not its business: the names of controls, forms and fields (only a station knows them), and the order of the
// lines. Errors: ScriptError with the line's number.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "replay/script_line.h"

namespace quorrin {

// Is there nothing to do in this line: blank, or a comment?
bool isSkippedLine(std::string_view text);

// Fills `line` from the text of line `number`. On an error line.timeMs is the line's own time where it has a
// good one, and -1 where not.
void parseScriptLine(std::string_view text, std::int64_t number, ScriptLine& line);

// Bytes from pairs of hex digits, either case; empty where it is no such text.
std::optional<std::string> bytesFromHex(std::string_view hex);

// One byte for each character up to U+00FF; empty where there is another one.
std::optional<std::string> oneByteEach(std::string_view utf8);

}  // namespace quorrin
