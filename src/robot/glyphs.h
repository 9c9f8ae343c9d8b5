// Letters made of dots: five columns by seven rows.
#pragma once

#include <array>
#include <cstdint>

namespace quorrin {

// From the top; each row's five bits, the leftmost highest.
using GlyphRows = std::array<std::uint8_t, 7>;

// A to Z (small letters are drawn as capitals), 0 to 9, ".", ":" and "#"; null for any other.
const GlyphRows* glyphRows(char letter);

}  // namespace quorrin
