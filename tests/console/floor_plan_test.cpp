#include "console/floor_plan.h"

#include <gtest/gtest.h>

#include "platform/virtual/memory_files.h"

namespace quorrin {
namespace {

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
};

TEST_F(FloorPlan, TheScrollBarsCoverWhatTheViewportDoesNotShow) {
    files.put("/app/office.bmp", bitmapHead(1000, 700));
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.HScroll1.minimum(), 1);
    EXPECT_EQ(controls.HScroll1.maximum(), 1000 * 15 - kViewportWidthTwips);
    EXPECT_EQ(controls.VScroll1.maximum(), 700 * 15 - kViewportHeightTwips);
    EXPECT_EQ(controls.HScroll1.smallChange, 25);
    EXPECT_EQ(controls.VScroll1.largeChange, 100);
}

TEST_F(FloorPlan, BothPicturesAreLoaded) {
    files.put("/app/office.bmp", bitmapHead(1000, 700));
    files.put("/app/office_s.bmp", bitmapHead(250, 170));
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.picRobotMap.file(), "/app/office.bmp");
    EXPECT_EQ(controls.imgThumb.file(), "/app/office_s.bmp");
}

TEST_F(FloorPlan, ATopDownBitmapCountsByItsRows) {
    files.put("/app/office.bmp", bitmapHead(1000, -700));
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.VScroll1.maximum(), 700 * 15 - kViewportHeightTwips);
}

TEST_F(FloorPlan, APlanWithinTheViewportGivesNoTravel) {
    files.put("/app/office.bmp", bitmapHead(20, 20));
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.HScroll1.maximum(), 1);
    EXPECT_EQ(controls.VScroll1.maximum(), 1);
}

TEST_F(FloorPlan, AMissingOrBrokenPlanGivesNoTravel) {
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.picRobotMap.file(), "");
    EXPECT_EQ(controls.HScroll1.maximum(), 1);
    files.put("/app/office.bmp", "no bitmap");
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.HScroll1.maximum(), 1);
}

TEST_F(FloorPlan, AnAbsurdSizeInTheHeaderIsCapped) {
    files.put("/app/office.bmp", bitmapHead(2147483647, -2147483647));
    loadFloorPlan(controls, "/app", files);
    EXPECT_EQ(controls.HScroll1.maximum(), 1'000'000);
    EXPECT_EQ(controls.VScroll1.maximum(), 1'000'000);
}

}  // namespace
}  // namespace quorrin
