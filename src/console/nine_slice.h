// How one small image of a button fills a button of any size: nine pieces, of which the four corners keep
// their size, the four edges are stretched along one side and the centre both ways.
//
// Integers of pixels; the source's and the target's border may differ, since an image is drawn in several
// resolutions and a screen has one of its own. A pure function. An area smaller than two borders shares what
// there is between its opposite corners; pieces without an area have a width or height of 0.
#pragma once

#include <array>

namespace quorrin {

// The border of every piece, in units (logical pixels).
constexpr int kSliceBorder = 3;

struct SliceRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int right() const { return left + width; }
    int bottom() const { return top + height; }
    bool empty() const { return width <= 0 || height <= 0; }
    bool operator==(const SliceRect&) const = default;
};

struct Slice {
    SliceRect source;
    SliceRect target;
};

// From left to right, top row first; 0, 2, 6 and 8 are the corners, 4 is the centre.
std::array<Slice, 9> nineSlices(const SliceRect& source, int sourceBorder, const SliceRect& target,
                                int targetBorder);

}  // namespace quorrin
