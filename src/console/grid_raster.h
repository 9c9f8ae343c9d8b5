// The certainty grid as rows of a picture, and which of its cells have changed since they were last drawn.
//
// Row 0 is farthest ahead of the start pose, column 0 farthest to its left; one cell a dot, certainty 0
// to 15. Holds a copy of what was drawn; allocates nothing. Only reads the grid.
#pragma once

#include <algorithm>
#include <cstring>

#include "session/record/map_values.h"

namespace quorrin {

class GridRaster {
  public:
    static constexpr int kSide = kGridCells;
    static constexpr int kHighestCertainty = 15;

    // Calls drawCell(row, column, certainty) for each cell that is no longer as drawn; returns how many.
    // Before the first call all cells count as drawn with certainty 0.
    template <typename DrawCell>
    int update(const MapValues& map, DrawCell drawCell) {
        int changed = 0;
        for (std::size_t x = 1; x <= kGridCells; ++x) {
            const auto& now = map.certaintyGrid[x];
            auto& drawn = drawn_[x];
            if (std::memcmp(now.data(), drawn.data(), sizeof now) == 0) continue;
            for (std::size_t y = 1; y <= kGridCells; ++y) {
                if (now[y] == drawn[y]) continue;
                drawn[y] = now[y];
                ++changed;
                drawCell(kSide - static_cast<int>(x), kSide - static_cast<int>(y), certainty(now[y]));
            }
        }
        return changed;
    }

    // All cells as they were drawn last.
    template <typename DrawCell>
    void all(DrawCell drawCell) const {
        for (std::size_t x = 1; x <= kGridCells; ++x)
            for (std::size_t y = 1; y <= kGridCells; ++y)
                drawCell(kSide - static_cast<int>(x), kSide - static_cast<int>(y), certainty(drawn_[x][y]));
    }

  private:
    static int certainty(std::int16_t count) { return std::clamp<int>(count, 0, kHighestCertainty); }
    decltype(MapValues::certaintyGrid) drawn_{};
};

}  // namespace quorrin
