#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::Not;

struct BringUp : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    void rest() {
        bench.startSession();
        values.requestWander = false;
    }
    void askForJoy() {
        rest();
        values.requestJoy = true;
    }
};

TEST_F(BringUp, AnIdleRobotIsHeldAtEveryTick) {
    rest();
    bench.tick();
    values.powerByte = 255;
    values.motLinkUp = true;
    values.motWarmupCount = 4;
    values.motSilentTicks = 100;
    gui.teleoperationtask->continue_();
    bench.tick();
    EXPECT_EQ(values.powerByte, 251);
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_EQ(values.motWarmupCount, 0);
    EXPECT_EQ(values.motSilentTicks, 0);
    EXPECT_FALSE(gui.teleoperationtask->active());
    EXPECT_EQ(gui.cmdChEn.picture(), 2);
}

TEST_F(BringUp, AnIdleRobotNeverRecoversThroughTheMotionLink) {
    rest();
    for (int i = 0; i < 60; ++i) {
        bench.powerFrames(1);
        bench.sensorFrames(11);
        bench.tick(5);
    }
    EXPECT_TRUE(values.tickEnabled);
    EXPECT_EQ(values.motSilentTicks, 0);
    EXPECT_NE(gui.txtRobotStatus.text(), "comm wrong");
}

TEST_F(BringUp, TheFirstStepSetsThePowerBitsAndForgetsTheLink) {
    bench.startSession();
    values.powerByte = 56;
    bench.sensorFrames(11);
    bench.tick();
    EXPECT_EQ(values.powerByte, 63);
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_EQ(values.motWarmupCount, 0);
}

TEST_F(BringUp, WithoutALinkTheWanderSequenceAlternatesForEver) {
    bench.startSession();
    bench.tick();
    EXPECT_EQ(values.startStep, 1);
    bench.tick();
    EXPECT_EQ(values.startStep, 2);
    for (int i = 0; i < 400; ++i) {
        bench.powerFrames(1);
        bench.tick();
        ASSERT_EQ(values.startStep, 2);  // 3 within the tick, back to 2
        ASSERT_EQ(values.robotMode, kModeIdle);
    }
    EXPECT_EQ(bench.myRobot.count("ShowLcdBitmap"), 0U);
}

TEST_F(BringUp, WithoutALinkTheJoySequenceAlternatesForEver) {
    askForJoy();
    for (int i = 0; i < 400; ++i) {
        bench.powerFrames(1);
        bench.tick();
        ASSERT_EQ(values.startStep, 1);
        ASSERT_EQ(values.robotMode, kModeIdle);
    }
}

TEST_F(BringUp, TheGatewayIsStartedOnceWhileTheSequenceWaits) {
    bench.startSession();
    bench.take();
    bench.tick(50);
    EXPECT_EQ(std::count(bench.log.begin(), bench.log.end(), "start QuorrinGatewaymot"), 1);
}

TEST_F(BringUp, TheWanderSequenceDoesNotStopTheDrives) {
    bench.startSession();
    bench.tick(2);
    bench.sensorFrames(11);
    bench.take();
    bench.tick(37);
    for (const std::string& line : bench.take())
        EXPECT_EQ(line.find("SuspendDrive"), std::string::npos) << line;
}

TEST_F(BringUp, TheJoySequenceStopsTheDrivesThenShowsTheFace) {
    askForJoy();
    bench.tick();
    bench.sensorFrames(11);
    bench.take();
    bench.tick();
    EXPECT_EQ(values.startStep, 2);
    EXPECT_THAT(bench.take(), Contains("myRobot.SuspendDrive 1"));
    bench.tick();
    EXPECT_THAT(bench.take(), Contains("myRobot.ShowLcdBitmap /app/quorrin128.bmp"));
    bench.tick(36);
    EXPECT_EQ(values.robotMode, kModeIdle);
    bench.take();
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeJoy);
    EXPECT_THAT(bench.take(), Contains("myRobot.SuspendDrive 0"));
}

// From the tick that finds the link up, that tick left out: 37 towards "wondering", 38 towards "JOY".
TEST_F(BringUp, TheSequencesTakeTheirTicksAfterTheLinkIsUp) {
    bench.startSession();
    bench.tick(2);
    bench.sensorFrames(11);
    int ticks = 0;
    for (; values.robotMode == kModeIdle; ++ticks) bench.tick();
    EXPECT_EQ(ticks - 1, 37);

    StationBench joy;
    joy.startSession();
    joy.values.requestWander = false;
    joy.values.requestJoy = true;
    joy.tick();
    joy.sensorFrames(11);
    ticks = 0;
    for (; joy.values.robotMode == kModeIdle; ++ticks) joy.tick();
    EXPECT_EQ(ticks - 1, 38);
}

TEST_F(BringUp, JoyIsEnteredWithItsValues) {
    bench.reachJoy();
    EXPECT_EQ(values.robotMode, kModeJoy);
    EXPECT_EQ(values.previousMode, kModeIdle);
    EXPECT_EQ(values.startStep, 0);
    EXPECT_EQ(gui.txtRobotStatus.text(), "JOY");
    EXPECT_EQ(gui.txtTh1.text(), "41");
    EXPECT_TRUE(values.landmarkLocked);
    EXPECT_TRUE(values.landmarkRunEnabled);
    EXPECT_FALSE(values.useWanderInput);
    EXPECT_TRUE(gui.teleoperationtask->active());
    EXPECT_FALSE(values.requestIdle || values.requestWander || values.requestJoy);
}

TEST_F(BringUp, WanderIsEnteredWithItsThresholds) {
    bench.startSession();
    gui.setThresholds(1, 2, 8, 9);
    bench.tick(2);
    bench.sensorFrames(11);
    bench.tick(38);
    EXPECT_EQ(values.robotMode, kModeWondering);
    EXPECT_EQ(gui.txtTh1.text() + gui.txtTh2.text() + gui.txtTh3.text() + gui.txtTh4.text(), "4010033");
}

TEST_F(BringUp, WithBothAskedForTheWanderSequenceRuns) {
    bench.startSession();
    values.requestJoy = true;
    bench.tick(2);
    bench.sensorFrames(11);
    bench.tick(38);
    EXPECT_EQ(values.robotMode, kModeWondering);
}

TEST_F(BringUp, IdleIsNotReadInIdleAndGoesWithTheEndOfASequence) {
    bench.startSession();
    values.requestIdle = true;
    bench.tick(2);
    bench.sensorFrames(11);
    bench.tick(37);
    EXPECT_TRUE(values.requestIdle);
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeWondering);
    EXPECT_FALSE(values.requestIdle);
}

TEST_F(BringUp, AChangeOfRequestInMidSequenceGoesOnAtTheSameStep) {
    bench.startSession();
    bench.tick(2);
    bench.sensorFrames(11);
    bench.tick(10);
    ASSERT_EQ(values.startStep, 12);
    values.requestWander = false;
    values.requestJoy = true;
    bench.take();
    bench.tick();
    EXPECT_EQ(values.startStep, 13);
    EXPECT_THAT(bench.take(), Not(Contains("start QuorrinGatewaymot")));
    bench.tick(27);
    EXPECT_EQ(values.robotMode, kModeJoy);
}

TEST_F(BringUp, ARequestThatGoesAwayLeavesTheSequenceWhereItStands) {
    bench.startSession();
    bench.tick(2);
    bench.sensorFrames(11);
    bench.tick(10);
    values.requestWander = false;
    bench.tick(10);
    EXPECT_EQ(values.startStep, 12);
    EXPECT_TRUE(values.motLinkUp);
}

TEST_F(BringUp, TheHeadIsUpdatedAtEveryTickWhileTheMotionLinkIsUp) {
    bench.startSession();
    bench.tick(2);
    bench.take();
    bench.tick(3);
    EXPECT_EQ(bench.myRobot.count("MoveServosTimed"), 0U);
    bench.sensorFrames(11);
    bench.take();
    bench.tick(3);
    EXPECT_EQ(bench.myRobot.count("MoveServosTimed"), 3U);
    EXPECT_TRUE(bench.myRobot.asked("MoveServosTimed 3900 3650 3400 -32768 3500 3200 300"));
}

}  // namespace
}  // namespace quorrin
