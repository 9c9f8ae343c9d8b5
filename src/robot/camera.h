// The simulated robot's camera: for now a test picture that shows the robot's time.
//
// Colour bars, brighter with the site's light, a bar that moves once a second across the lower part, and the
// whole seconds in figures. Three bytes a pixel (red, green, blue), rows from the top, no padding.
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

struct CameraPicture {
    int width = 0;
    int height = 0;
    std::string pixels;
};

CameraPicture takePicture(std::int64_t timeMs, double light);

// The picture as a 24-bit Windows bitmap file.
std::string bitmapFile(const CameraPicture& picture);

}  // namespace quorrin
