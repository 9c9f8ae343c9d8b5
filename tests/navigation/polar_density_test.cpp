#include "navigation/polar_density.h"

#include <gtest/gtest.h>

#include <memory>
#include <numeric>
#include <random>

#include "base/program_error.h"
#include "navigation/window_tables.h"
#include "support/plain_sensor_map.h"

namespace quorrin {
namespace {

class PolarDensity : public ::testing::Test {
  protected:
    std::int16_t& cell(int x, int y) {
        return map.certaintyGrid[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
    }
    int total() const { return std::accumulate(map.polarHistogram.begin(), map.polarHistogram.end(), 0); }
    MapValues map;
};

TEST_F(PolarDensity, TheRobotsOwnCellLandsInSectorTen) {
    cell(80, 80) = 10;
    buildPolarHistogram(map, 80, 80);
    EXPECT_EQ(map.polarHistogram[10], 100);
    EXPECT_EQ(total(), 100);
    EXPECT_EQ(map.sectorCells[0][7][7], 10);
    EXPECT_EQ(map.sectorCells[1][7][7], 100);
}

TEST_F(PolarDensity, SectorsOfTheWindowRunFromOneToThirtySix) {
    int lowest = 99;
    int highest = 0;
    for (std::size_t i = 1; i <= 13; ++i) {
        for (std::size_t j = 1; j <= 13; ++j) {
            const int sector = windowTables().sector[i][j];
            lowest = std::min(lowest, sector);
            highest = std::max(highest, sector);
        }
    }
    EXPECT_EQ(lowest, 1);
    EXPECT_EQ(highest, 36);
    EXPECT_EQ(windowTables().sector[1][8], 36);
    EXPECT_EQ(windowTables().sector[1][7], 1);
}

TEST_F(PolarDensity, ACountOfSevenBesideTheRobotWeighsFortyEight) {
    cell(81, 80) = 7;
    buildPolarHistogram(map, 80, 80);
    EXPECT_EQ(map.polarHistogram[19], 48);
    smoothPolarHistogram(map);
    EXPECT_EQ(map.polarHistogram[19], 16);
    EXPECT_EQ(map.polarHistogram[18], 11);  // 48 * 2 / 9
    EXPECT_EQ(map.polarHistogram[17], 5);   // 48 / 9
    EXPECT_EQ(map.polarHistogram[16], 0);
    thresholdHistogram(map, 40);
    EXPECT_EQ(map.binaryHistogram, MapValues{}.binaryHistogram);
}

TEST_F(PolarDensity, TheWindowsCornersWeighNothing) {
    cell(74, 74) = 15;
    cell(86, 86) = 15;
    buildPolarHistogram(map, 80, 80);
    EXPECT_EQ(total(), 0);
}

TEST_F(PolarDensity, CellsBeyondTheWindowAreNotSeen) {
    cell(73, 80) = 15;
    cell(80, 87) = 15;
    buildPolarHistogram(map, 80, 80);
    EXPECT_EQ(total(), 0);
}

TEST_F(PolarDensity, CellsOutsideOneTo159AreLeftOut) {
    cell(160, 158) = 15;
    cell(159, 158) = 4;
    buildPolarHistogram(map, 158, 158);
    EXPECT_EQ(total(), 16);
    map = {};
    cell(1, 1) = 4;
    buildPolarHistogram(map, 1, 1);
    EXPECT_EQ(total(), 16);
}

TEST_F(PolarDensity, AnEmptyGridGivesEmptyHistograms) {
    map.polarHistogram.fill(7);
    map.binaryHistogram.fill(1);
    buildPolarHistogram(map, 80, 80);
    smoothPolarHistogram(map);
    thresholdHistogram(map, 40);
    for (std::size_t sector = 1; sector <= 36; ++sector) {
        EXPECT_EQ(map.polarHistogram[sector], 0);
        EXPECT_EQ(map.binaryHistogram[sector], 0);
    }
}

TEST_F(PolarDensity, SmoothingJoinsTheLowEndToTheHighOne) {
    map.polarHistogram[36] = 90;
    smoothPolarHistogram(map);
    EXPECT_EQ(map.polarHistogram[1], 20);
    EXPECT_EQ(map.polarHistogram[2], 10);
}

TEST_F(PolarDensity, AtTheHighEndSectorsOneAndTwoStandInForThirtyFiveAndThirtySix) {
    map.polarHistogram[35] = 90;
    map.polarHistogram[36] = 900;
    smoothPolarHistogram(map);
    EXPECT_EQ(map.polarHistogram[36], 0);
    EXPECT_EQ(map.polarHistogram[35], 0);
    EXPECT_EQ(map.polarHistogram[34], 0);
    EXPECT_EQ(map.polarHistogram[33], 0);
    map.polarHistogram = {};
    map.polarHistogram[1] = 90;
    smoothPolarHistogram(map);
    EXPECT_EQ(map.polarHistogram[33], 10);
    EXPECT_EQ(map.polarHistogram[34], 20);
    EXPECT_EQ(map.polarHistogram[35], 30);
    EXPECT_EQ(map.polarHistogram[36], 20);
}

TEST_F(PolarDensity, TheThresholdItselfIsFree) {
    map.polarHistogram[5] = 40;
    map.polarHistogram[6] = 41;
    thresholdHistogram(map, 40);
    EXPECT_EQ(map.binaryHistogram[5], 0);
    EXPECT_EQ(map.binaryHistogram[6], 1);
    thresholdHistogram(map, 41);
    EXPECT_EQ(map.binaryHistogram[6], 0);
}

TEST_F(PolarDensity, ASquareOrASumThatDoesNotFitIsAnError) {
    cell(81, 80) = 182;
    EXPECT_THROW(buildPolarHistogram(map, 80, 80), ProgramError);
    map = {};
    cell(81, 80) = cell(82, 80) = cell(83, 80) = 120;  // 14200 + 13600 + 12600
    EXPECT_THROW(buildPolarHistogram(map, 80, 80), ProgramError);
    map = {};
    map.polarHistogram[5] = 20000;
    EXPECT_THROW(smoothPolarHistogram(map), ProgramError);
}

TEST_F(PolarDensity, CountsBeyondTheTableFollowTheFormula) {
    cell(81, 80) = 16;
    cell(80, 79) = 3;
    buildPolarHistogram(map, 80, 80);
    EXPECT_EQ(map.polarHistogram[19], 252);  // 256 * 71 / 72 = 252.4
    EXPECT_EQ(map.polarHistogram[10], 9);    // 9 * 71 / 72 = 8.9
}

TEST_F(PolarDensity, AnyGridEqualsTheFormulaWrittenPlainly) {
    std::mt19937 random(5);
    std::uniform_int_distribution<int> place(1, 160);
    std::uniform_int_distribution<int> interior(7, 153);
    const auto reference = std::make_unique<plain::SensorMap>();
    for (int round = 0; round < 3000; ++round) {
        const bool inner = round % 3 != 0;
        const int x = inner ? interior(random) : place(random);
        const int y = inner ? interior(random) : place(random);
        const int share = 1 + round % 100;
        for (int i = std::max(1, x - 8); i <= std::min(160, x + 8); ++i)
            for (int j = std::max(1, y - 8); j <= std::min(160, y + 8); ++j)
                cell(i, j) = static_cast<std::int16_t>(
                    static_cast<int>(random() % 100) < share ? random() % (round % 10 == 0 ? 20 : 16) : 0);
        reference->map = map;
        buildPolarHistogram(map, x, y);
        reference->density(x, y);
        ASSERT_EQ(map.polarHistogram, reference->map.polarHistogram) << x << "," << y;
        ASSERT_EQ(map.sectorCells, reference->map.sectorCells) << x << "," << y;
        smoothPolarHistogram(map);
        reference->smooth();
        ASSERT_EQ(map.polarHistogram, reference->map.polarHistogram) << x << "," << y;
    }
}

}  // namespace
}  // namespace quorrin
