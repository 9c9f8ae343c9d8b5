#include "imaging/bitmap_resample.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/rounding.h"

namespace quorrin {

namespace {

// Where a target index falls between two neighbours of the source.
struct Place {
    std::size_t first;
    std::size_t second;
    float fraction;
};

Place placeOf(std::int32_t target, float scale, std::int32_t sourceSide) {
    const float position = static_cast<float>(target) * scale;
    const float whole = std::floor(position);
    const std::int32_t last = sourceSide - 1;
    const std::int32_t first = std::min(static_cast<std::int32_t>(whole), last);
    return {static_cast<std::size_t>(first), static_cast<std::size_t>(std::min(first + 1, last)),
            position - whole};
}

int blend(int first, int second, float fraction) {
    const float sum = static_cast<float>(first) * (1.0F - fraction) + static_cast<float>(second) * fraction;
    return static_cast<int>(roundHalfEven(static_cast<double>(sum)));
}

}  // namespace

void resample(const Bitmap& source, Bitmap& target) {
    if (source.width() == target.width() && source.height() == target.height()) {
        std::memcpy(target.bits(), source.bits(), source.bytes());
        return;
    }
    const float xScale = static_cast<float>(source.width() - 1) / static_cast<float>(target.width());
    const float yScale = static_cast<float>(source.height() - 1) / static_cast<float>(target.height());
    for (std::int32_t y = 0; y < target.height(); ++y) {
        const Place down = placeOf(y, yScale, source.height());
        const std::uint8_t* const firstRow = source.bits() + down.first * source.rowBytes();
        const std::uint8_t* const secondRow = source.bits() + down.second * source.rowBytes();
        std::uint8_t* to = target.bits() + static_cast<std::size_t>(y) * target.rowBytes();
        for (std::int32_t x = 0; x < target.width(); ++x) {
            const Place across = placeOf(x, xScale, source.width());
            for (std::size_t channel = 0; channel < 3; ++channel) {
                const std::size_t left = across.first * 3 + channel;
                const std::size_t right = across.second * 3 + channel;
                const int leftColumn = blend(firstRow[left], secondRow[left], down.fraction);
                const int rightColumn = blend(firstRow[right], secondRow[right], down.fraction);
                *to++ = static_cast<std::uint8_t>(
                    std::clamp(blend(leftColumn, rightColumn, across.fraction), 0, 255));
            }
        }
    }
}

}  // namespace quorrin
