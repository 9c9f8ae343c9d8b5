#include "console/grid_raster.h"

#include <gmock/gmock.h>

#include <memory>
#include <tuple>
#include <vector>

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Cell = std::tuple<int, int, int>;  // row, column, certainty

struct GridRasterTest : testing::Test {
    std::vector<Cell> update() {
        std::vector<Cell> drawn;
        const int count =
            raster->update(*map, [&](int row, int column, int c) { drawn.emplace_back(row, column, c); });
        EXPECT_EQ(count, static_cast<int>(drawn.size()));
        return drawn;
    }
    std::unique_ptr<MapValues> map = std::make_unique<MapValues>();
    std::unique_ptr<GridRaster> raster = std::make_unique<GridRaster>();
};

TEST_F(GridRasterTest, AnEmptyGridNeedsNoDrawing) {
    EXPECT_THAT(update(), IsEmpty());
}

TEST_F(GridRasterTest, FarAheadIsTheFirstRowAndFarLeftTheFirstColumn) {
    map->certaintyGrid[160][160] = 3;
    EXPECT_THAT(update(), ElementsAre(Cell{0, 0, 3}));
}

TEST_F(GridRasterTest, BehindAndRightIsTheLastRowAndColumn) {
    map->certaintyGrid[1][1] = 15;
    EXPECT_THAT(update(), ElementsAre(Cell{159, 159, 15}));
}

TEST_F(GridRasterTest, OnlyWhatChangedIsDrawnAgain) {
    map->certaintyGrid[80][80] = 6;
    map->certaintyGrid[80][90] = 6;
    update();
    map->certaintyGrid[80][90] = 5;
    EXPECT_THAT(update(), ElementsAre(Cell{80, 70, 5}));
    EXPECT_THAT(update(), IsEmpty());
}

TEST_F(GridRasterTest, TheUnusedElementsAreNoCells) {
    map->certaintyGrid[0][5] = 9;
    map->certaintyGrid[5][0] = 9;
    EXPECT_THAT(update(), IsEmpty());
}

TEST_F(GridRasterTest, ACountThatIsNoneIsDrawnAsTheNearestOne) {
    map->certaintyGrid[10][10] = -4;
    map->certaintyGrid[10][9] = 99;
    EXPECT_THAT(update(), ElementsAre(Cell{150, 151, 15}, Cell{150, 150, 0}));
}

TEST_F(GridRasterTest, AllTellsEveryCellAsItWasDrawn) {
    map->certaintyGrid[80][80] = 6;
    update();
    map->certaintyGrid[80][80] = 9;
    int cells = 0;
    int sum = 0;
    raster->all([&](int, int, int certainty) {
        ++cells;
        sum += certainty;
    });
    EXPECT_EQ(cells, 160 * 160);
    EXPECT_EQ(sum, 6);
}

}  // namespace
}  // namespace quorrin
