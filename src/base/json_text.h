// Values as JSON text, in the one form that replays and recordings have: ", " and ": " as separators, UTF-8
// kept as it is, doubles as the shortest text that reads back to the same value.
//
// Functions append to `out`. Bytes that are no UTF-8 become U+FFFD; a NaN or an infinity, which JSON does not
// know, becomes null.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorrin {

void appendWhole(std::string& out, std::int64_t value);
void appendDouble(std::string& out, double value);
void appendBoolean(std::string& out, bool value);
// In quotes, escaped.
void appendText(std::string& out, std::string_view text);

// Two lower-case hex digits for each byte, without quotes.
void appendHex(std::string& out, std::string_view bytes);

// Length in bytes of the UTF-8 character at the start of `text`, or 0 where there is none.
std::size_t utf8CharacterLength(std::string_view text);

}  // namespace quorrin
