// Texts from elsewhere (a station, a script's file) as one line that is safe on a terminal: control
// characters as "\x1B", and what is longer than kToldBytes cut, with "..." behind it. Pure functions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorrin {

// Whoever reads the output may be slow: a line of this length goes out at once or not at all.
constexpr std::size_t kToldBytes = 400;

// UTF-8 stays as it is.
std::string printableText(std::string_view text);
// A station's bytes, of which only those of ASCII are known to be characters.
std::string printableBytes(std::string_view bytes);

}  // namespace quorrin
