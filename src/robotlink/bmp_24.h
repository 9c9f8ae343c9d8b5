// A picture as a 24-bit Windows bitmap file. Pure.
//
// In: three bytes a pixel (red, green, blue), rows from the top, no padding, width x height x 3 bytes in all.
// Out: the whole file; rows from the bottom, each padded to four bytes, blue first.
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

std::string encodeBmp24(std::int32_t width, std::int32_t height, const std::string& pixels);

}  // namespace quorrin
