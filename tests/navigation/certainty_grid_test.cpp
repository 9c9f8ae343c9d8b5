#include "navigation/certainty_grid.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "base/program_error.h"
#include "support/plain_sensor_map.h"

namespace quorrin {
namespace {

class CertaintyGrid : public ::testing::Test {
  protected:
    std::int16_t& cell(int x, int y) {
        return map.certaintyGrid[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
    }
    void fill(int count) {
        for (int x = 1; x <= 160; ++x)
            for (int y = 1; y <= 160; ++y) cell(x, y) = static_cast<std::int16_t>(count);
    }
    // Cells that a ray lowered, as "x,y " in order of x then y.
    std::string visited(int x0, int y0, int x1, int y1) {
        fill(5);
        clearRay(map, x0, y0, x1, y1);
        std::string cells;
        for (int x = 1; x <= 160; ++x)
            for (int y = 1; y <= 160; ++y)
                if (cell(x, y) != 5) cells += std::to_string(x) + "," + std::to_string(y) + " ";
        return cells;
    }
    MapValues map;
};

TEST_F(CertaintyGrid, TheOriginLiesInCellEighty) {
    EXPECT_EQ(cellOf(0), 80);
    EXPECT_EQ(cellOf(0.051), 81);
    EXPECT_EQ(cellOf(-7.89), 1);
    EXPECT_EQ(cellOf(7.99), 160);
}

TEST_F(CertaintyGrid, ACoordinateBetweenTwoCellsGoesToTheEvenOne) {
    EXPECT_EQ(cellOf(0.25), 82);
    EXPECT_EQ(cellOf(0.75), 88);
    EXPECT_EQ(cellOf(-0.25), 78);
}

TEST_F(CertaintyGrid, ACellBeyondAnIntegerIsAnError) {
    EXPECT_THROW(cellOf(3270), ProgramError);
}

TEST_F(CertaintyGrid, ALoneHitAddsThreeEachTime) {
    EXPECT_TRUE(markCell(map, 50, 60));
    EXPECT_EQ(cell(50, 60), 3);
    EXPECT_TRUE(markCell(map, 50, 60));
    EXPECT_EQ(cell(50, 60), 6);
}

TEST_F(CertaintyGrid, ALoneCellReachesTheCeilingFromTwelve) {
    cell(50, 60) = 11;
    markCell(map, 50, 60);
    EXPECT_EQ(cell(50, 60), 14);
    cell(50, 60) = 12;
    markCell(map, 50, 60);
    EXPECT_EQ(cell(50, 60), 15);
}

TEST_F(CertaintyGrid, AHitAmongMarkedNeighboursJumpsToTheCeiling) {
    cell(49, 59) = 15;
    cell(51, 61) = 9;  // the sum of 24 gives 15
    markCell(map, 50, 60);
    EXPECT_EQ(cell(50, 60), 15);
}

TEST_F(CertaintyGrid, EachOfTheEightNeighboursCounts) {
    for (int i = -1; i <= 1; ++i) {
        for (int j = -1; j <= 1; ++j) {
            if (i == 0 && j == 0) continue;
            map = {};
            cell(50 + i, 60 + j) = 14;  // q is 10: the ceiling from 5 on
            cell(50, 60) = 5;
            markCell(map, 50, 60);
            EXPECT_EQ(cell(50, 60), 15) << i << "," << j;
        }
    }
}

TEST_F(CertaintyGrid, TheNeighboursWeightRoundsToEven) {
    // a sum of 5 gives Round(5.5) = 6: the ceiling from 9; a sum of 7 gives Round(6.5) = 6 too
    for (const int sum : {5, 7}) {
        map = {};
        cell(49, 60) = static_cast<std::int16_t>(sum);
        cell(50, 60) = 8;
        markCell(map, 50, 60);
        EXPECT_EQ(cell(50, 60), 11) << sum;
        cell(50, 60) = 9;
        markCell(map, 50, 60);
        EXPECT_EQ(cell(50, 60), 15) << sum;
    }
}

TEST_F(CertaintyGrid, BorderCellsAreNeverMarked) {
    EXPECT_FALSE(markCell(map, 1, 50));
    EXPECT_FALSE(markCell(map, 160, 50));
    EXPECT_FALSE(markCell(map, 50, 1));
    EXPECT_FALSE(markCell(map, 50, 160));
    EXPECT_FALSE(markCell(map, -3, 50));
    EXPECT_FALSE(markCell(map, 50, 3000));
    EXPECT_TRUE(markCell(map, 2, 2));
    EXPECT_TRUE(markCell(map, 159, 159));
    EXPECT_EQ(cell(1, 50), 0);
}

TEST_F(CertaintyGrid, AnOverflowInsideMarkCellEndsThatCall) {
    cell(49, 60) = 32767;
    cell(51, 60) = 32767;
    EXPECT_FALSE(markCell(map, 50, 60));
    EXPECT_EQ(cell(50, 60), 0);
}

TEST_F(CertaintyGrid, ARayVisitsTheStartAndNotTheHit) {
    EXPECT_EQ(visited(80, 80, 84, 80), "80,80 81,80 82,80 83,80 ");
    EXPECT_EQ(visited(80, 80, 76, 80), "77,80 78,80 79,80 80,80 ");
    EXPECT_EQ(visited(80, 80, 80, 83), "80,80 80,81 80,82 ");
    EXPECT_EQ(visited(80, 80, 80, 77), "80,78 80,79 80,80 ");
}

TEST_F(CertaintyGrid, ADifferenceOfZeroOrOneVisitsNothing) {
    EXPECT_EQ(visited(80, 80, 80, 80), "");
    EXPECT_EQ(visited(80, 80, 81, 80), "");
    EXPECT_EQ(visited(80, 80, 81, 81), "");
    EXPECT_EQ(visited(80, 80, 80, 81), "");
    EXPECT_EQ(visited(80, 80, 79, 80), "80,80 ");
    EXPECT_EQ(visited(80, 80, 80, 79), "80,80 ");
}

TEST_F(CertaintyGrid, ADiagonalWalksAlongX) {
    EXPECT_EQ(visited(80, 80, 83, 77), "80,80 81,79 82,78 ");
    EXPECT_EQ(visited(80, 80, 77, 83), "78,82 79,81 80,80 ");
}

TEST_F(CertaintyGrid, TheShorterAxisRoundsToEven) {
    // slope a half: 0.5 to 0, 1 to 1, 1.5 to 2
    EXPECT_EQ(visited(80, 80, 84, 82), "80,80 81,80 82,81 83,82 ");
    EXPECT_EQ(visited(80, 80, 84, 78), "80,80 81,80 82,79 83,78 ");
    EXPECT_EQ(visited(80, 80, 82, 84), "80,80 80,81 81,82 82,83 ");
}

TEST_F(CertaintyGrid, ACellStopsAtZero) {
    cell(81, 80) = 1;
    clearRay(map, 80, 80, 84, 80);
    clearRay(map, 80, 80, 84, 80);
    EXPECT_EQ(cell(81, 80), 0);
    EXPECT_EQ(cell(80, 80), 0);
}

TEST_F(CertaintyGrid, LeavingTheGridEndsTheWalkAndKeepsItsWork) {
    EXPECT_EQ(visited(158, 80, 170, 80), "158,80 159,80 160,80 ");
    EXPECT_EQ(visited(3, 80, -20, 80), "1,80 2,80 3,80 ");
    EXPECT_EQ(visited(0, 80, 10, 80), "");
}

TEST_F(CertaintyGrid, AWalkWhoseProductsDoNotFitEndsThere) {
    // 3000 * 10 still fits, 3000 * 11 does not
    fill(5);
    clearRay(map, 80, 80, 3080, 3080);
    EXPECT_EQ(cell(90, 90), 4);
    EXPECT_EQ(cell(91, 91), 5);
    fill(5);
    clearRay(map, -20000, 80, 20000, 80);
    EXPECT_EQ(cell(80, 80), 5);
}

TEST_F(CertaintyGrid, AnyRayEqualsTheFormulaWrittenPlainly) {
    std::mt19937 random(11);
    std::uniform_int_distribution<int> inside(1, 160);
    std::uniform_int_distribution<int> around(-30, 190);
    const auto reference = std::make_unique<plain::SensorMap>();
    for (int i = 0; i < 20000; ++i) {
        fill(5);
        reference->map.certaintyGrid = map.certaintyGrid;
        const int x0 = inside(random);
        const int y0 = inside(random);
        const int x1 = i % 2 == 0 ? inside(random) : around(random);
        const int y1 = i % 3 == 0 ? around(random) : inside(random);
        clearRay(map, x0, y0, x1, y1);
        reference->clearRay(x0, y0, x1, y1);
        ASSERT_EQ(map.certaintyGrid, reference->map.certaintyGrid)
            << x0 << "," << y0 << " to " << x1 << "," << y1;
    }
}

TEST_F(CertaintyGrid, FadingLowersEveryCellAboveZero) {
    fill(2);
    cell(1, 1) = 15;
    cell(160, 160) = 1;
    cell(80, 80) = 0;
    fadeGrid(map);
    EXPECT_EQ(cell(1, 1), 14);
    EXPECT_EQ(cell(160, 160), 0);
    EXPECT_EQ(cell(80, 80), 0);
    EXPECT_EQ(cell(1, 160), 1);
    EXPECT_EQ(cell(160, 1), 1);
    EXPECT_EQ(cell(33, 77), 1);
}

TEST_F(CertaintyGrid, ClearingEmptiesEveryCell) {
    fill(9);
    clearGrid(map);
    EXPECT_EQ(map.certaintyGrid, MapValues{}.certaintyGrid);
}

}  // namespace
}  // namespace quorrin
