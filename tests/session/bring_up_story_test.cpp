#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::Not;

struct BringUpStory : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;
};

TEST_F(BringUpStory, TheEleventhPowerFrameStartsTheSession) {
    bench.station.startAtMainForm();
    bench.powerFrames(10);
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_FALSE(values.tiLinkUp);
    bench.powerFrames(1);
    EXPECT_TRUE(values.tiLinkUp);
    EXPECT_TRUE(values.tickEnabled);
    EXPECT_FALSE(values.autoStartPending);
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_TRUE(values.requestWander);
}

TEST_F(BringUpStory, ATwelfthPowerFrameDoesNotPressStartAgain) {
    bench.startSession();
    values.robotX = 3;
    bench.powerFrames(5);
    EXPECT_EQ(values.robotX, 3);
}

TEST_F(BringUpStory, TheFirstTickStartsTheMotionGateway) {
    bench.startSession();
    bench.take();
    bench.tick();
    EXPECT_THAT(bench.take(), Contains("start QuorrinGatewaymot"));
    EXPECT_EQ(values.startStep, 1);
    EXPECT_EQ(values.powerByte, 63);
}

TEST_F(BringUpStory, ThirtySevenTicksAfterTheLinkIsUpTheRobotWanders) {
    bench.startSession();
    bench.tick(2);
    bench.sensorFrames(11);
    bench.take();
    bench.tick();
    EXPECT_THAT(bench.take(), Contains("myRobot.ShowLcdBitmap /app/quorrin128.bmp"));
    bench.tick(36);
    EXPECT_EQ(values.robotMode, kModeIdle);
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeWondering);
    EXPECT_EQ(values.previousMode, kModeIdle);
    EXPECT_EQ(values.startStep, 0);
    EXPECT_EQ(gui.txtRobotStatus.text(), "wondering");
    EXPECT_TRUE(values.useWanderInput);
    EXPECT_TRUE(gui.teleoperationtask->active());
    EXPECT_FALSE(values.requestWander || values.requestJoy || values.requestIdle);
}

}  // namespace
}  // namespace quorrin
