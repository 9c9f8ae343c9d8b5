// The strip of button images: one cell for each state and look, drawn in several resolutions.
//
// A column for each state in the order of ButtonState, a row for each look. A cell is kCellUnits square with
// a border of kSliceBorder on each side; a resolution of n draws a unit as n pixels. Drawing needs no screen
// and no application object; the project's build does it once, and the windows carry the result as a
// resource.
#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <array>
#include <cstdint>

#include "console/nine_slice.h"
#include "desktop/skin/skin_looks.h"

namespace quorrin {

constexpr int kCellUnits = 24;
constexpr std::array<int, 4> kSkinScales = {1, 2, 3, 4};

QImage drawSkinStrip(int scale);

// Where a cell stands in the strip of that resolution, in pixels.
SliceRect skinCell(int state, std::int32_t look, int scale);

// "buttons_2x.png"
QString skinFileName(int scale);

}  // namespace quorrin
