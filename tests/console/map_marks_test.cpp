#include "console/map_marks.h"

#include <gmock/gmock.h>

#include "console/floor_plan.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

constexpr Colour kRed = 255;
constexpr Colour kBlue = 16711680;

struct MapMarks : testing::Test {
    Form form{"frmGUI"};
    MapControls controls{form};

    // A plan of 15000 by 10000 twips behind a viewport of 6000 by 4000: maxima 9000 and 6000.
    void SetUp() override {
        bindFloorPlan(controls);
        controls.picRobotMap.setArea({0, 0, 15000, 10000});
        viewportResized(controls, {0, 0, 6000, 4000});
        controls.HScroll1.setValue(500);
        controls.VScroll1.setValue(600);
    }
    // The point whose centring wants the bars at these values.
    void centreAt(double h, double v) { setPictureCenter(controls, h + 255 + 3000, v + 255 + 2000); }
};

TEST_F(MapMarks, TheBigMarkIsARedCircleByTheOffset) {
    printBigPicture(controls, 1255, 855.5);
    EXPECT_THAT(controls.picRobotMap.drawing(), ElementsAre(DrawnCircle{1000, 600.5, 150, kRed}));
}

TEST_F(MapMarks, TheOverviewMarkIsABlueCircleWhereTheOverviewStands) {
    controls.imgThumb.setArea({120, 3000, 2520, 2325});
    printthumbnailPicture(controls, 255 + 4195, 255 + 8390);
    EXPECT_THAT(controls.picRobotMap.drawing(), ElementsAre(DrawnCircle{1120, 5000, 50, kBlue}));
}

TEST_F(MapMarks, TheBigMarkPrintedTwiceIsOneCircle) {
    printBigPicture(controls, 1000, 1000);
    printBigPicture(controls, 2255, 2255);
    EXPECT_THAT(controls.picRobotMap.drawing(), ElementsAre(DrawnCircle{2000, 2000, 150, kRed}));
}

TEST_F(MapMarks, OnlyTheMarkPrintedLastRemains) {
    printBigPicture(controls, 1000, 1000);
    printthumbnailPicture(controls, 255, 255);
    EXPECT_THAT(controls.picRobotMap.drawing(), ElementsAre(DrawnCircle{0, 0, 50, kBlue}));
    printBigPicture(controls, 255, 255);
    EXPECT_THAT(controls.picRobotMap.drawing(), ElementsAre(DrawnCircle{0, 0, 150, kRed}));
}

TEST_F(MapMarks, ARefreshOfThePlanKeepsItsMark) {
    printBigPicture(controls, 1000, 1000);
    controls.picRobotMap.refresh();
    EXPECT_EQ(controls.picRobotMap.drawing().size(), 1U);
}

TEST_F(MapMarks, ThePlanIsScrolledSoThatThePointIsInTheMiddle) {
    setPictureCenter(controls, 255 + 3000 + 1234, 255 + 2000 + 4321);
    EXPECT_EQ(controls.HScroll1.value(), 1234);
    EXPECT_EQ(controls.VScroll1.value(), 4321);
    EXPECT_EQ(controls.picRobotMap.area().left, -1234);
    EXPECT_EQ(controls.picRobotMap.area().top, -4321);
}

TEST_F(MapMarks, ABarGoesToTheNearestWholeNumberWithHalvesToTheEvenOne) {
    centreAt(1234.5, 1235.5);
    EXPECT_EQ(controls.HScroll1.value(), 1234);
    EXPECT_EQ(controls.VScroll1.value(), 1236);
}

TEST_F(MapMarks, APointNearTheLeftEdgeMovesTheViewFullyToTheLeft) {
    setPictureCenter(controls, 400, 400);
    EXPECT_EQ(controls.HScroll1.value(), 1);
    EXPECT_EQ(controls.VScroll1.value(), 1);
}

TEST_F(MapMarks, APointBeyondTheTravelMovesTheViewFullyToTheRight) {
    centreAt(9001, 6001);
    EXPECT_EQ(controls.HScroll1.value(), 9000);
    EXPECT_EQ(controls.VScroll1.value(), 6000);
}

TEST_F(MapMarks, AtTheMaximumItselfTheBarGoesThere) {
    centreAt(9000, 6000);
    EXPECT_EQ(controls.HScroll1.value(), 9000);
    EXPECT_EQ(controls.VScroll1.value(), 6000);
}

TEST_F(MapMarks, ExactlyOneIsAValueOfTheBar) {
    centreAt(1, 1);
    EXPECT_EQ(controls.HScroll1.value(), 1);
    EXPECT_EQ(controls.VScroll1.value(), 1);
}

TEST_F(MapMarks, BetweenNothingAndOneTheBarGoesToItsMaximum) {
    centreAt(0.5, 0.999);
    EXPECT_EQ(controls.HScroll1.value(), 9000);
    EXPECT_EQ(controls.VScroll1.value(), 6000);
}

TEST_F(MapMarks, ExactlyNothingLeavesTheBarsAsTheyAre) {
    centreAt(0, 0);
    EXPECT_EQ(controls.HScroll1.value(), 500);
    EXPECT_EQ(controls.VScroll1.value(), 600);
}

TEST_F(MapMarks, BelowNothingTheBarGoesToItsMinimum) {
    centreAt(-0.25, -1000);
    EXPECT_EQ(controls.HScroll1.value(), 1);
    EXPECT_EQ(controls.VScroll1.value(), 1);
}

TEST_F(MapMarks, TheTwoBarsAreSetEachByItsOwnNumber) {
    centreAt(-5, 2000);
    EXPECT_EQ(controls.HScroll1.value(), 1);
    EXPECT_EQ(controls.VScroll1.value(), 2000);
}

TEST_F(MapMarks, WithoutTravelTheBarsStay) {
    viewportResized(controls, {0, 0, 20000, 20000});
    for (const double point : {0.0, 300.0, 10255.0, 50000.0}) {
        setPictureCenter(controls, point, point);
        EXPECT_EQ(controls.HScroll1.value(), 1);
        EXPECT_EQ(controls.VScroll1.value(), 1);
    }
}

}  // namespace
}  // namespace quorrin
