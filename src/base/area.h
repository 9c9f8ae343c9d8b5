// Where a window or a frame is. Twips: 1/15 of a logical pixel, downwards and to the right. A window's place
// is on the screen, a frame's inside its form's window. Values only; a view keeps them up to date.
#pragma once

#include <cstdint>

namespace quorrin {

constexpr int kTwipsPerPixel = 15;

struct Area {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool operator==(const Area&) const = default;
};

}  // namespace quorrin
