// The certainty grid and the histograms made from it. See the sensor map for their meaning.
//
// Indices count from 1 as in the formulas; element 0 of each array is unused. A grid cell is 0.1 m square,
// cell 80 holds the origin; counts are 0 to 15.
#pragma once

#include <array>
#include <cstdint>

namespace quorrin {

constexpr int kGridCells = 160;
constexpr int kSectors = 36;
constexpr int kWindowCells = 13;

struct MapValues {
    // certaintyGrid[x][y], x and y 1 to 160
    std::array<std::array<std::int16_t, kGridCells + 1>, kGridCells + 1> certaintyGrid{};
    std::array<std::int16_t, kSectors + 1> polarHistogram{};
    std::array<std::int16_t, kSectors + 1> binaryHistogram{};  // 1 blocked, 0 free
    // sectorCells[plane][i][j]: plane 0 the sector number, plane 1 the magnitude of window cell (i, j)
    std::array<std::array<std::array<std::int16_t, kWindowCells + 1>, kWindowCells + 1>, 2> sectorCells{};
};

}  // namespace quorrin
