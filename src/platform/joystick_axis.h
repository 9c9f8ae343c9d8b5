// From what a device reports of its axes to the scales of joysticks.h. Pure functions.
//
// A raw axis is 16 bits signed. Its full range, -32768 to 32767, stands for the way from the range's minimum
// to its maximum; the middle lies between -1 and 0.
#pragma once

#include <cstdint>

namespace quorrin {

// Dead zone and saturation in ten-thousandths of half the way.
struct AxisScale {
    int minimum = 0;
    int maximum = 10000;
    int deadZone = 0;
    int saturation = 10000;
};

// An axis with a middle: inside the dead zone exactly the middle, from the saturation on exactly the end, and
// linear in between, each half on its own.
int scaledAxis(std::int16_t raw, const AxisScale& scale);

// An axis without a middle: linear over its full range.
int scaledSlider(std::int16_t raw, const AxisScale& scale);

}  // namespace quorrin
