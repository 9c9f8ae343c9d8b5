// A picture as a simulated robot's camera gives it, and as a bitmap file.
//
// Three bytes a pixel (red, green, blue), rows from the top, no padding.
#pragma once

#include <string>

namespace quorrin {

struct CameraPicture {
    int width = 0;
    int height = 0;
    std::string pixels;
};

// The picture as a 24-bit Windows bitmap file.
std::string bitmapFile(const CameraPicture& picture);

}  // namespace quorrin
