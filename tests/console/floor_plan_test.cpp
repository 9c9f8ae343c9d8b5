#include "console/floor_plan.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/virtual/memory_files.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

constexpr int kViewportWidth = MapControls::kDesignedViewportWidth;
constexpr int kViewportHeight = MapControls::kDesignedViewportHeight;

// The head of a bitmap file of that many pixels; no rows behind it.
std::string bitmapHead(int width, int height) {
    std::string bytes(54, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[18 + i] = static_cast<char>(static_cast<unsigned>(width) >> (8 * i));
        bytes[22 + i] = static_cast<char>(static_cast<unsigned>(height) >> (8 * i));
    }
    return bytes;
}

struct FloorPlan : testing::Test {
    Form form{"frmGUI"};
    MapControls controls{form};
    MemoryFiles files;

    void load(int width, int height) {
        files.put("/app/office.bmp", bitmapHead(width, height));
        bindFloorPlan(controls);
        loadFloorPlan(controls, "/app", files);
        form.show();
    }
};

TEST_F(FloorPlan, TheScrollBarsCoverWhatTheViewportDoesNotShow) {
    load(1000, 700);
    EXPECT_EQ(controls.HScroll1.minimum(), 1);
    EXPECT_EQ(controls.HScroll1.maximum(), 1000 * 15 - kViewportWidth);
    EXPECT_EQ(controls.HScroll1.smallChange, 25);
    EXPECT_EQ(controls.HScroll1.largeChange, 100);
    EXPECT_EQ(controls.VScroll1.minimum(), 1);
    EXPECT_EQ(controls.VScroll1.maximum(), 700 * 15 - kViewportHeight);
    EXPECT_EQ(controls.VScroll1.smallChange, 25);
    EXPECT_EQ(controls.VScroll1.largeChange, 100);
}

TEST_F(FloorPlan, BothPicturesAreLoaded) {
    files.put("/app/office_s.bmp", bitmapHead(250, 170));
    load(1000, 700);
    EXPECT_EQ(controls.picRobotMap.file(), "/app/office.bmp");
    EXPECT_EQ(controls.picRobotMap.area(), (Area{0, 0, 15000, 10500}));
    EXPECT_EQ(controls.imgThumb.file(), "/app/office_s.bmp");
}

TEST_F(FloorPlan, ThePlansSizeIsKnownWhenItsFileIsTold) {
    Area told;
    controls.picRobotMap.onLook = [&] {
        if (!controls.picRobotMap.file().empty()) told = controls.picRobotMap.area();
    };
    load(1000, 700);
    EXPECT_EQ(told, (Area{0, 0, 15000, 10500}));
}

TEST_F(FloorPlan, ATopDownBitmapCountsByItsRows) {
    load(1000, -700);
    EXPECT_EQ(controls.VScroll1.maximum(), 700 * 15 - kViewportHeight);
}

TEST_F(FloorPlan, APlanWithinTheViewportGivesAMaximumBelowTheMinimum) {
    load(20, 20);
    EXPECT_EQ(controls.HScroll1.maximum(), 300 - kViewportWidth);
    EXPECT_EQ(controls.VScroll1.maximum(), 300 - kViewportHeight);
}

TEST_F(FloorPlan, WithoutTravelThePictureStaysAtItsPlace) {
    load(20, 20);
    for (const int wanted : {-500, 0, 1, 50, 20000}) {
        controls.HScroll1.operatorMove(wanted);
        controls.VScroll1.operatorMove(wanted);
        EXPECT_EQ(controls.HScroll1.value(), 1);
        EXPECT_EQ(controls.picRobotMap.area(), (Area{0, 0, 300, 300}));
    }
}

TEST_F(FloorPlan, AMissingOrBrokenPlanGivesNoTravel) {
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.picRobotMap.file(), "");
    EXPECT_LT(controls.HScroll1.maximum(), 1);
    files.put("/app/office.bmp", "no bitmap");
    loadFloorPlan(controls, "/app", files);
    EXPECT_LT(controls.HScroll1.maximum(), 1);
}

TEST_F(FloorPlan, AnAbsurdSizeInTheHeaderIsTheLargestNumber) {
    load(2147483647, -2147483647);
    EXPECT_EQ(controls.HScroll1.maximum(), std::numeric_limits<std::int32_t>::max() - kViewportWidth);
    EXPECT_EQ(controls.VScroll1.maximum(), std::numeric_limits<std::int32_t>::max() - kViewportHeight);
}

TEST_F(FloorPlan, ANegativeWidthInTheHeaderIsNoWidth) {
    load(-2147483647, 700);
    EXPECT_EQ(controls.picRobotMap.area().width, 0);
}

TEST_F(FloorPlan, TheBarsMoveThePictureTheOtherWay) {
    load(1000, 700);
    controls.HScroll1.operatorMove(1234);
    EXPECT_EQ(controls.picRobotMap.area().left, -1234);
    EXPECT_EQ(controls.picRobotMap.area().top, 0);
    controls.VScroll1.operatorMove(567);
    EXPECT_EQ(controls.picRobotMap.area().left, -1234);
    EXPECT_EQ(controls.picRobotMap.area().top, -567);
    controls.HScroll1.operatorMove(1);
    EXPECT_EQ(controls.picRobotMap.area().left, -1);
}

TEST_F(FloorPlan, AMovedPictureIsShownAnew) {
    load(1000, 700);
    int looks = 0;
    controls.picRobotMap.onLook = [&looks] { ++looks; };
    controls.HScroll1.operatorMove(300);
    EXPECT_EQ(looks, 1);
}

TEST_F(FloorPlan, TheTravelFollowsTheRealViewport) {
    load(1000, 700);
    viewportResized(controls, {150, 300, 6000, 4500});
    EXPECT_EQ(controls.Frame1.area(), (Area{150, 300, 6000, 4500}));
    EXPECT_EQ(controls.HScroll1.maximum(), 15000 - 6000);
    EXPECT_EQ(controls.VScroll1.maximum(), 10500 - 4500);
}

TEST_F(FloorPlan, APlanThatIsScrolledToItsEndFollowsAGrowingViewport) {
    load(1000, 700);
    controls.HScroll1.operatorMove(15000);
    EXPECT_EQ(controls.picRobotMap.area().left, -(15000 - kViewportWidth));
    viewportResized(controls, {0, 0, 12000, 4500});
    EXPECT_EQ(controls.HScroll1.value(), 3000);
    EXPECT_EQ(controls.picRobotMap.area().left, -3000);
}

TEST_F(FloorPlan, AViewportToldBeforeThePlanIsLoadedCounts) {
    viewportResized(controls, {0, 0, 3000, 3000});
    load(1000, 700);
    EXPECT_EQ(controls.HScroll1.maximum(), 12000);
}

// 705 by 650 pixels is the plan that comes with the station.
TEST_F(FloorPlan, TheShippedPlanKeepsBothMaximaWithinSixteenBitsInEveryAllowedViewport) {
    load(705, 650);
    const ViewportLimit limit = largestViewport(controls);
    viewportResized(controls, {0, 0, limit.width, limit.height});
    EXPECT_GE(controls.HScroll1.maximum(), controls.HScroll1.minimum() + controls.HScroll1.largeChange);
    EXPECT_GE(controls.VScroll1.maximum(), controls.VScroll1.minimum() + controls.VScroll1.largeChange);
    viewportResized(controls, {0, 0, 0, 0});
    EXPECT_LE(controls.HScroll1.maximum(), 32767);
    EXPECT_LE(controls.VScroll1.maximum(), 32767);
}

TEST_F(FloorPlan, AVerySmallPlanIsSeenAsAWhole) {
    load(20, 20);
    EXPECT_GT(largestViewport(controls).width, controls.picRobotMap.area().width);
}

TEST_F(FloorPlan, WithoutAPlanThereIsNoLimitToKeep) {
    EXPECT_EQ(largestViewport(controls).width, 0);
    EXPECT_EQ(largestViewport(controls).height, 0);
}

TEST_F(FloorPlan, TheSeenPartFollowsTheBars) {
    load(1000, 700);
    viewportResized(controls, {0, 0, 7500, 5250});
    EXPECT_DOUBLE_EQ(seenPart(controls).left, 0);
    EXPECT_DOUBLE_EQ(seenPart(controls).width, 0.5);
    controls.HScroll1.operatorMove(3000);
    controls.VScroll1.operatorMove(15000);
    EXPECT_DOUBLE_EQ(seenPart(controls).left, 0.2);
    EXPECT_DOUBLE_EQ(seenPart(controls).top, 0.5);
    EXPECT_DOUBLE_EQ(seenPart(controls).height, 0.5);
}

TEST_F(FloorPlan, AViewportLargerThanThePlanSeesAllOfIt) {
    load(20, 20);
    EXPECT_DOUBLE_EQ(seenPart(controls).width, 1);
    EXPECT_DOUBLE_EQ(seenPart(controls).height, 1);
}

TEST_F(FloorPlan, ADraggedPlanFollowsTheMouseUpToItsEdges) {
    load(1000, 700);
    EXPECT_EQ(draggedTo(controls.HScroll1, 1000, -10), 1150);
    EXPECT_EQ(draggedTo(controls.HScroll1, 1000, 10), 850);
    EXPECT_EQ(draggedTo(controls.HScroll1, 1000, 10000), 1);
    EXPECT_EQ(draggedTo(controls.HScroll1, 1000, -10000), controls.HScroll1.maximum());
}

TEST_F(FloorPlan, ANotchOfTheWheelIsThreeLargeSteps) {
    load(1000, 700);
    controls.VScroll1.operatorMove(1000);
    EXPECT_EQ(wheeledTo(controls.VScroll1, -120), 1300);
    EXPECT_EQ(wheeledTo(controls.VScroll1, 120), 700);
    EXPECT_EQ(wheeledTo(controls.VScroll1, 12000), 1);
    EXPECT_EQ(wheeledTo(controls.VScroll1, -120000), controls.VScroll1.maximum());
}

TEST_F(FloorPlan, WithoutTravelDragAndWheelStayAtTheMinimum) {
    load(20, 20);
    EXPECT_EQ(draggedTo(controls.HScroll1, 1, -50), 1);
    EXPECT_EQ(wheeledTo(controls.VScroll1, -120), 1);
}

TEST(FloorPlanOfAStation, IsLoadedAndBoundByTheMainForm) {
    StationBench bench;
    bench.files.put("/app/office.bmp", bitmapHead(705, 650));
    bench.station.startAtMainForm();
    EXPECT_EQ(bench.gui.HScroll1.maximum(), 705 * 15 - kViewportWidth);
    bench.gui.HScroll1.operatorMove(300);
    EXPECT_EQ(bench.gui.picRobotMap.area().left, -300);
}

}  // namespace
}  // namespace quorrin
