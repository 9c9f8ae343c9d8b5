// What the polar density needs to know of each cell of the 13 x 13 window round the robot, worked out once.
//
// Indices 1 to 13, (7, 7) is the robot's own cell; i runs along x, j along y. The tables hold exactly what
// the formulas give: the sector of the cell's bearing, and the magnitude of a count, Round(count^2 * (1 - d2
// / 72)) with d2 the squared distance to the centre in cells.
#pragma once

#include <array>
#include <cstdint>

#include "session/record/map_values.h"

namespace quorrin {

constexpr int kWindowCentre = 7;
constexpr int kCountsInTable = 16;

struct WindowTables {
    WindowTables();

    // Laid out like a plane of sectorCells.
    std::array<std::array<std::int16_t, kWindowCells + 1>, kWindowCells + 1> sector{};
    std::array<std::array<double, kWindowCells + 1>, kWindowCells + 1> factor{};
    // magnitude[i][j][count], counts 0 to 15
    std::array<std::array<std::array<std::uint8_t, kCountsInTable>, kWindowCells + 1>, kWindowCells + 1>
        magnitude{};
};

const WindowTables& windowTables();

}  // namespace quorrin
