#include "navigation/polar_density.h"

#include <algorithm>
#include <cstring>

#include "base/rounding.h"
#include "navigation/window_tables.h"

namespace quorrin {

namespace {

using Grid = decltype(MapValues::certaintyGrid);
// Entries 0 to 40 of the smoothing's scratch; the rest only rounds it up to whole groups of eight.
using Padded = std::array<std::int16_t, 48>;

constexpr int kFirstUsable = 1;
constexpr int kLastUsable = 159;
constexpr int kReach = kWindowCells - kWindowCentre;

// Four neighbouring cells in one word.
using FourCells = std::uint64_t;
constexpr FourCells kBeyondTable = 0xFFF0FFF0FFF0FFF0;

FourCells fourCells(const std::int16_t* cells) {
    FourCells word;
    std::memcpy(&word, cells, sizeof word);
    return word;
}

// All bits that occur in the window whose row i begins at corner + i rows.
FourCells windowBits(const Grid& grid, std::size_t x, std::size_t y) {
    FourCells bits = 0;
    for (std::size_t i = 0; i < kWindowCells; ++i) {
        const std::int16_t* const row = &grid[x + i][y];
        bits |= fourCells(row) | fourCells(row + 4) | fourCells(row + 8) | fourCells(row + 9);
    }
    return bits;
}

// The window lies whole on the grid and all its counts are in the table: nothing can overflow. Most cells are
// empty, so they are passed over four at a time.
void densityInside(MapValues& map, std::size_t x, std::size_t y) {
    const WindowTables& tables = windowTables();
    auto& magnitudes = map.sectorCells[1];
    map.sectorCells[0] = tables.sector;
    magnitudes = {};
    map.polarHistogram = {};
    for (std::size_t i = 1; i <= kWindowCells; ++i) {
        const std::int16_t* const row = &map.certaintyGrid[x + i - 1][y] - 1;  // row[j] is window cell j
        const auto take = [&](std::size_t j) {
            const auto count = static_cast<std::size_t>(row[j]);
            const std::int16_t magnitude = tables.magnitude[i][j][count];
            std::int16_t& sum = map.polarHistogram[static_cast<std::size_t>(tables.sector[i][j])];
            magnitudes[i][j] = magnitude;
            sum = static_cast<std::int16_t>(sum + magnitude);
        };
        for (std::size_t j = 1; j + 3 <= kWindowCells; j += 4) {
            if (fourCells(row + j) == 0) continue;
            for (std::size_t n = j; n < j + 4; ++n) take(n);
        }
        take(kWindowCells);
    }
}

void densityChecked(MapValues& map, int x, int y) {
    const WindowTables& tables = windowTables();
    map.polarHistogram = {};
    for (int i = 1; i <= kWindowCells; ++i) {
        const int cellX = x - kWindowCentre + i;
        if (cellX < kFirstUsable || cellX > kLastUsable) continue;
        for (int j = 1; j <= kWindowCells; ++j) {
            const int cellY = y - kWindowCentre + j;
            if (cellY < kFirstUsable || cellY > kLastUsable) continue;
            const auto row = static_cast<std::size_t>(i);
            const auto column = static_cast<std::size_t>(j);
            const Integer count(
                map.certaintyGrid[static_cast<std::size_t>(cellX)][static_cast<std::size_t>(cellY)]);
            const std::int16_t sector = tables.sector[row][column];
            map.sectorCells[0][row][column] = sector;
            const Integer magnitude =
                roundToInteger(static_cast<double>(count * count) * tables.factor[row][column]);
            map.sectorCells[1][row][column] = magnitude;
            std::int16_t& sum = map.polarHistogram[static_cast<std::size_t>(sector)];
            sum = Integer(sum) + magnitude;
        }
    }
}

// The histogram with two sectors of the other end on either side.
Padded padded(const MapValues& map) {
    Padded t{};
    std::copy(map.polarHistogram.begin() + 1, map.polarHistogram.end(), t.begin() + 3);
    t[2] = map.polarHistogram[36];
    t[1] = map.polarHistogram[35];
    // These two overwrite sectors 35 and 36 themselves, and 39 and 40 stay 0: so it has always been steered.
    t[37] = map.polarHistogram[1];
    t[38] = map.polarHistogram[2];
    return t;
}

Integer smoothedChecked(const Padded& t, std::size_t i) {
    Integer sum = Integer(t[i]) * 3;
    for (std::size_t j = 1; j <= 2; ++j)
        sum += (Integer(t[i - j]) + Integer(t[i + j])) * static_cast<int>(3 - j);
    return roundToInteger(static_cast<double>(sum) / 9.0);
}

// Sectors 1 to 36 of densities up to 2047, whose ninefold fits. Ninths never tie, so half to even is "add
// four, cut off". The four lanes too many make whole groups of eight.
constexpr std::uint16_t kSmallBits = 2047;

void smoothSmall(MapValues& map, const Padded& t) {
    std::array<std::uint16_t, 40> smoothed;
    for (std::size_t n = 0; n < smoothed.size(); ++n) {
        const auto ring = [&](std::size_t i) { return static_cast<std::uint16_t>(t[n + i]); };
        const auto sum =
            static_cast<std::uint16_t>(ring(3) * 3 + (ring(2) + ring(4)) * 2 + ring(1) + ring(5) + 4);
        smoothed[n] = static_cast<std::uint16_t>(sum / 9U);
    }
    std::copy_n(smoothed.begin(), kSectors, map.polarHistogram.begin() + 1);
}

}  // namespace

void buildPolarHistogram(MapValues& map, Integer robotCellX, Integer robotCellY) {
    const int x = robotCellX;
    const int y = robotCellY;
    const auto fits = [](int centre) {
        return centre - kReach >= kFirstUsable && centre + kReach <= kLastUsable;
    };
    if (fits(x) && fits(y)) {
        const auto cornerX = static_cast<std::size_t>(x - kReach);
        const auto cornerY = static_cast<std::size_t>(y - kReach);
        if ((windowBits(map.certaintyGrid, cornerX, cornerY) & kBeyondTable) == 0) {
            densityInside(map, cornerX, cornerY);
            return;
        }
    }
    densityChecked(map, x, y);
}

void smoothPolarHistogram(MapValues& map) {
    const Padded t = padded(map);
    std::uint16_t bits = 0;
    for (const std::int16_t value : t) bits |= static_cast<std::uint16_t>(value);
    if ((bits & ~kSmallBits) == 0) {
        smoothSmall(map, t);
        return;
    }
    for (std::size_t i = 3; i <= 38; ++i) map.polarHistogram[i - 2] = smoothedChecked(t, i);
}

void thresholdHistogram(MapValues& map, Integer densityThreshold) {
    for (std::size_t sector = 1; sector <= kSectors; ++sector)
        map.binaryHistogram[sector] = map.polarHistogram[sector] > densityThreshold ? 1 : 0;
}

}  // namespace quorrin
