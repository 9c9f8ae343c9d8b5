#include "navigation/certainty_grid.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "base/program_error.h"

namespace quorrin {

namespace {

using Row = std::array<std::int16_t, kGridCells + 1>;

constexpr int kLowestMarked = 2;
constexpr int kHighestMarked = 159;
constexpr std::ptrdiff_t kRowStride = kGridCells + 1;
static_assert(sizeof(Row) == kRowStride * sizeof(std::int16_t), "walks cross rows by a fixed stride");

bool onGrid(int x, int y) {
    return x >= 1 && x <= kGridCells && y >= 1 && y <= kGridCells;
}

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

// Counts are never negative, so a sum that fits at its end has fitted all along.
Integer neighbourSum(const MapValues& map, int x, int y) {
    int sum = -map.certaintyGrid[at(x)][at(y)];
    for (int i = x - 1; i <= x + 1; ++i) {
        const std::int16_t* const middle = &map.certaintyGrid[at(i)][at(y)];
        sum += middle[-1] + middle[0] + middle[1];
    }
    return Integer(sum);
}

void lower(std::int16_t& cell) {
    cell = static_cast<std::int16_t>(cell - (cell > 0 ? 1 : 0));  // no branch: counts come as they like
}

// One walk, seen along its longer axis: `major` and `minor` are the signed differences of the end cells.
struct Walk {
    int steps;      // cells to visit
    int direction;  // along the longer axis
    int major;
    int minor;
};

Walk walkAlong(Integer major, Integer minor) {
    if (major > 1) return {major, 1, major, minor};
    const Integer backwards = -major;
    return {backwards > 0 ? backwards.value() : 0, -1, major, minor};
}

// Both ends lie on the grid, so every cell between them does too. The position on the shorter axis is
// |minor| * k / |major| rounded half to even, kept up by whole numbers: `rest` is 2 * |minor| * k + |major|
// less 2 * |major| for each step taken aside, so that a rest of exactly 2 * |major| is a tie, which steps
// aside only from an odd place.
void walkInside(std::int16_t* cell, const Walk& walk, std::ptrdiff_t majorStride,
                std::ptrdiff_t minorStride) {
    const std::ptrdiff_t ahead = walk.direction > 0 ? majorStride : -majorStride;
    const std::ptrdiff_t aside = walk.minor > 0 ? minorStride : -minorStride;
    const int whole = 2 * std::abs(walk.major);
    const int slope = 2 * std::abs(walk.minor);
    int rest = std::abs(walk.major);
    int odd = 0;
    for (int left = walk.steps; left > 0; --left) {
        lower(*cell);
        cell += ahead;
        rest += slope;
        if (rest + odd > whole) {
            rest -= whole;
            cell += aside;
            odd ^= 1;
        }
    }
}

void walkChecked(MapValues& map, Integer x0, Integer y0, const Walk& walk, bool alongX) {
    for (int k = 0; k < walk.steps; ++k) {
        const Integer product = Integer(walk.minor) * Integer(k);
        const Integer aside = roundToInteger(static_cast<double>(product) / walk.major);
        const Integer x = x0 + walk.direction * (alongX ? Integer(k) : aside);
        const Integer y = y0 + walk.direction * (alongX ? aside : Integer(k));
        if (!onGrid(x, y)) return;
        lower(map.certaintyGrid[at(x)][at(y)]);
    }
}

// Eight cells at once; both compilers turn it into what the machine has.
using EightCells [[gnu::vector_size(16)]] = std::int16_t;
constexpr std::size_t kCellsAtOnce = 8;
constexpr std::size_t kGroupsInHand = 4;
static_assert(kGridCells % (kCellsAtOnce * kGroupsInHand) == 0, "a row is whole groups");

inline void fadeEight(std::int16_t* first) {
    EightCells cells;
    std::memcpy(&cells, first, sizeof cells);
    cells += cells > 0;  // true is -1
    std::memcpy(first, &cells, sizeof cells);
}

}  // namespace

void clearGrid(MapValues& map) {
    map.certaintyGrid = {};
}

bool markCell(MapValues& map, Integer x, Integer y) {
    if (x > kHighestMarked || x < kLowestMarked || y < kLowestMarked || y > kHighestMarked) return false;
    try {
        const Integer neighbours = neighbourSum(map, x, y);
        const Integer boost = roundToInteger(static_cast<double>(neighbours) * 0.5 + 3.0);
        std::int16_t& cell = map.certaintyGrid[at(x)][at(y)];
        if (cell >= kCertaintyCeiling - boost)
            cell = kCertaintyCeiling;
        else
            cell = Integer(cell) + 3;
        return true;
    } catch (const ProgramError&) {
        return false;
    }
}

void clearRay(MapValues& map, Integer x0, Integer y0, Integer x1, Integer y1) {
    try {
        const Integer dx = x1 - x0;
        const Integer dy = y1 - y0;
        const bool alongX = std::abs(dx) >= std::abs(dy);
        const Walk walk = alongX ? walkAlong(dx, dy) : walkAlong(dy, dx);
        if (onGrid(x0, y0) && onGrid(x1, y1)) {
            std::int16_t* const start = &map.certaintyGrid[at(x0)][at(y0)];
            walkInside(start, walk, alongX ? kRowStride : 1, alongX ? 1 : kRowStride);
        } else {
            walkChecked(map, x0, y0, walk, alongX);
        }
    } catch (const ProgramError&) {
        // ends this ray only
    }
}

void fadeGrid(MapValues& map) {
    for (std::size_t x = 1; x <= kGridCells; ++x) {
        std::int16_t* group = &map.certaintyGrid[x][1];
        const std::int16_t* const end = group + kGridCells;
        for (; group != end; group += kCellsAtOnce * kGroupsInHand) {
            fadeEight(group);
            fadeEight(group + kCellsAtOnce);
            fadeEight(group + kCellsAtOnce * 2);
            fadeEight(group + kCellsAtOnce * 3);
        }
    }
}

}  // namespace quorrin
