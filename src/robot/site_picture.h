// Walls from a picture: dark pixels are wall, light ones floor.
//
// Reads 24-bit uncompressed Windows bitmaps and binary grey maps (PGM, "P5"); nothing else. The result is the
// border between wall and floor as horizontal and vertical segments, collinear ones joined. The picture's
// lower left corner lies at `origin`. Errors: SiteError.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "robot/geometry.h"

namespace quorrin {

struct GreyPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> grey;  // rows from the top

    std::uint8_t at(int x, int y) const {
        return grey[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                    static_cast<std::size_t>(x)];
    }
};

GreyPicture readGreyPicture(const std::string& bytes, const std::string& name);
std::vector<Segment> wallsFromPicture(const GreyPicture& picture, double metresPerPixel, Vec2 origin);

}  // namespace quorrin
