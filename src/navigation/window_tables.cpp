#include "navigation/window_tables.h"

#include "base/rounding.h"
#include "navigation/math/angles.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

constexpr double kCornerDistance2 = 72.0;  // twice 6 squared
constexpr double kSectorWidth = GeneralConstants::kTwoPi / 36.0;

std::int16_t sectorOfCell(int i, int j) {
    const double direction = bearingBetween(kWindowCentre, kWindowCentre, i, j);
    return roundToInteger((direction + GeneralConstants::kPi) / kSectorWidth + 0.501);
}

double factorOfCell(int i, int j) {
    const int d2 = (j - kWindowCentre) * (j - kWindowCentre) + (i - kWindowCentre) * (i - kWindowCentre);
    return 1.0 - d2 / kCornerDistance2;
}

}  // namespace

WindowTables::WindowTables() {
    for (int i = 1; i <= kWindowCells; ++i) {
        for (int j = 1; j <= kWindowCells; ++j) {
            const auto row = static_cast<std::size_t>(i);
            const auto column = static_cast<std::size_t>(j);
            sector[row][column] = sectorOfCell(i, j);
            factor[row][column] = factorOfCell(i, j);
            for (int count = 0; count < kCountsInTable; ++count)
                magnitude[row][column][static_cast<std::size_t>(count)] =
                    static_cast<std::uint8_t>(roundToInteger(count * count * factor[row][column]));
        }
    }
}

const WindowTables& windowTables() {
    static const WindowTables tables;
    return tables;
}

}  // namespace quorrin
