#include "console/nine_slice.h"

#include <algorithm>
#include <cstddef>

namespace quorrin {

namespace {

struct Span {
    int from = 0;
    int length = 0;
};

// Border, middle, border of one side.
std::array<Span, 3> spans(int from, int length, int border) {
    const int whole = std::max(length, 0);
    const int first = std::min(border, (whole + 1) / 2);
    const int last = std::min(border, whole - first);
    return {{{from, first}, {from + first, whole - first - last}, {from + whole - last, last}}};
}

}  // namespace

std::array<Slice, 9> nineSlices(const SliceRect& source, int sourceBorder, const SliceRect& target,
                                int targetBorder) {
    const auto fromX = spans(source.left, source.width, sourceBorder);
    const auto fromY = spans(source.top, source.height, sourceBorder);
    const auto toX = spans(target.left, target.width, targetBorder);
    const auto toY = spans(target.top, target.height, targetBorder);
    std::array<Slice, 9> slices;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            Slice& slice = slices[row * 3 + column];
            slice.source = {fromX[column].from, fromY[row].from, fromX[column].length, fromY[row].length};
            slice.target = {toX[column].from, toY[row].from, toX[column].length, toY[row].length};
        }
    }
    return slices;
}

}  // namespace quorrin
