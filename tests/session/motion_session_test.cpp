#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Not;

struct MotionSession : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    void SetUp() override { bench.station.startAtMainForm(); }
    void start() { gui.cmdStart.operatorClick(); }
};

TEST_F(MotionSession, ARunBeginsInIdleWithAWanderAskedFor) {
    values.requestJoy = values.requestIdle = true;
    start();
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_TRUE(values.requestWander);
    EXPECT_FALSE(values.requestJoy || values.requestIdle);
    EXPECT_EQ(gui.cmdStart.caption(), "START");
}

TEST_F(MotionSession, ARunClearsTheLinksCountsAndTheOverride) {
    values.motSilentTicks = values.tiSilentTicks = 9;
    values.motLinkUp = true;
    values.motWarmupCount = 4;
    values.tiLinkUp = true;
    values.remoteCommandActive = true;
    values.joyOverride = true;
    values.lostFixCount = 0;
    start();
    EXPECT_EQ(values.motSilentTicks, 0);
    EXPECT_EQ(values.tiSilentTicks, 0);
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_EQ(values.motWarmupCount, 0);
    EXPECT_TRUE(values.tiLinkUp);
    EXPECT_FALSE(values.remoteCommandActive);
    EXPECT_FALSE(values.joyOverride);
    EXPECT_EQ(values.lostFixCount, 60);
}

TEST_F(MotionSession, ARunLeavesTheSticksClaimAsItStands) {
    values.joystickActive = true;
    start();
    EXPECT_TRUE(values.joystickActive);
}

TEST_F(MotionSession, ARunSetsTheNoPowerThreshold) {
    EXPECT_EQ(gui.txtNopowerth.text(), "9.0");
    start();
    EXPECT_EQ(values.noPowerVolts, 9.9);
    EXPECT_EQ(gui.txtNopowerth.text(), "9.9");
}

TEST_F(MotionSession, ARunZeroesThePoseAndItsCopies) {
    for (double* pose : {&values.robotX, &values.robotY, &values.robotTheta, &values.fixX, &values.fixY,
                         &values.fixTheta, &values.fixX2, &values.fixY2, &values.fixTheta2})
        *pose = 1.5;
    start();
    EXPECT_THAT(
        (std::vector<double>{values.robotX, values.robotY, values.robotTheta, values.fixX, values.fixY,
                             values.fixTheta, values.fixX2, values.fixY2, values.fixTheta2}),
        Each(0.0));
}

TEST_F(MotionSession, ARunClearsStuckStateAndEncoders) {
    values.inStuck = true;
    values.encoderDataValid = true;
    start();
    EXPECT_FALSE(values.inStuck);
    EXPECT_FALSE(values.encoderDataValid);
}

TEST_F(MotionSession, ARunClearsTheLandmarksInUseAndKeepsTheirTables) {
    values.pairA1 = values.pairA2 = values.pairB1 = values.pairB2 = 3;
    values.zoneRow = 2;
    values.zoneChangeCount = 1;
    values.landmarkHold = -1;
    values.landmarkCount = 5;
    values.landmarkRangeA = {0, 1.5, 2.5};
    values.landmarkRangeB = {0, 1.5};
    values.landmarkPos.resize(6);
    values.landmarkSelectPending = true;
    start();
    EXPECT_EQ(values.pairA1 + values.pairA2 + values.pairB1 + values.pairB2, 0);
    EXPECT_EQ(values.zoneRow, 0);
    EXPECT_EQ(values.zoneChangeCount, 0);
    EXPECT_EQ(values.landmarkHold, 0);
    EXPECT_THAT(values.landmarkRangeA, ElementsAre(0, 0, 0));
    EXPECT_THAT(values.landmarkRangeB, ElementsAre(0, 0));
    EXPECT_EQ(values.landmarkCount, 5);
    EXPECT_EQ(values.landmarkPos.size(), 6U);
    EXPECT_TRUE(values.landmarkSelectPending);
}

TEST_F(MotionSession, ARunTurnsTheTickOn) {
    values.pingEnabled = true;
    start();
    EXPECT_FALSE(values.pingEnabled);
    EXPECT_TRUE(values.tickEnabled && values.displayEnabled && values.antiStuckEnabled &&
                values.landmarkRunEnabled);
    EXPECT_FALSE(values.landmarkLocked);
}

TEST_F(MotionSession, ARunClearsThePatrolsRemains) {
    gui.alarmCnt = 1;
    gui.alarmEnd = -1;
    gui.iniPar = false;
    gui.resetMOTTI = true;
    gui.resetCnt = 4;
    gui.cmdTalk.setEnabled(false);
    start();
    EXPECT_EQ(gui.alarmCnt, 0);
    EXPECT_EQ(gui.alarmEnd, 0);
    EXPECT_TRUE(gui.iniPar);
    EXPECT_FALSE(gui.resetMOTTI);
    EXPECT_EQ(gui.resetCnt, 0);
    EXPECT_TRUE(gui.cmdTalk.enabled());
}

TEST_F(MotionSession, ARunKeepsRangesGridStepAndThresholds) {
    values.irRange[3] = 0.7;
    values.sonarRange[1] = 1.1;
    values.certaintyGrid[80][80] = 9;
    values.startStep = 12;
    gui.txtTh1.setText("55");
    start();
    EXPECT_EQ(values.irRange[3], 0.7);
    EXPECT_EQ(values.sonarRange[1], 1.1);
    EXPECT_EQ(values.certaintyGrid[80][80], 9);
    EXPECT_EQ(values.startStep, 12);
    EXPECT_EQ(gui.txtTh1.text(), "55");
}

TEST_F(MotionSession, ARunSuspendsTheDriver) {
    gui.teleoperationtask->continue_();
    start();
    EXPECT_FALSE(gui.teleoperationtask->active());
}

TEST_F(MotionSession, StartWhileTheRobotMovesBeginsAnewWithTheGatewayLeftOpen) {
    StationBench moving;
    moving.reachWondering();
    moving.values.robotX = 2;
    moving.take();
    moving.gui.cmdStart.operatorClick();
    EXPECT_EQ(moving.values.robotX, 0);
    EXPECT_EQ(moving.values.robotMode, kModeIdle);
    EXPECT_FALSE(moving.values.motLinkUp);
    EXPECT_THAT(moving.take(), Not(Contains("close Quorrin Gateway_MotionControl")));
    EXPECT_TRUE(moving.programs.hasWindow(StationBench::kMotionTitle));
    moving.tick(2);
    moving.sensorFrames(11);
    EXPECT_TRUE(moving.values.motLinkUp);
}

TEST_F(MotionSession, AnotherCaptionWouldSuspendTheSession) {
    start();
    gui.cmdStart.setCaption("STOP");
    values.pingEnabled = true;
    bench.take();
    gui.cmdStart.operatorClick();
    EXPECT_EQ(gui.cmdStart.caption(), "START");
    EXPECT_EQ(values.robotMode, kModeStarting);
    EXPECT_FALSE(values.tickEnabled || values.displayEnabled || values.pingEnabled ||
                 values.antiStuckEnabled);
    EXPECT_TRUE(values.landmarkLocked);
    EXPECT_FALSE(values.landmarkRunEnabled);
    EXPECT_EQ(bench.myRobot.count("SuspendDrive"), 6U);
}

TEST_F(MotionSession, SuspendingStopsTheServoTimer) {
    gui.tmrServoControl.setRunning(true);
    gui.cmdStart.setCaption("STOP");
    gui.cmdStart.operatorClick();
    EXPECT_FALSE(gui.tmrServoControl.running());
}

TEST_F(MotionSession, StopOnlyStopsTheDrives) {
    start();
    gui.teleoperationtask->continue_();
    bench.take();
    gui.cmdStop.operatorClick();
    EXPECT_THAT(bench.take(), ElementsAre("myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1"));
    EXPECT_TRUE(gui.teleoperationtask->active());
}

TEST_F(MotionSession, StopHoldsForOneTickOfTheNavigator) {
    StationBench moving;
    moving.reachWondering();
    moving.gui.cmdStop.operatorClick();
    moving.take();
    moving.clock.runFor(100);
    EXPECT_GE(moving.myRobot.count("SetDriveVelocities"), 1U);
}

TEST_F(MotionSession, StoprobotStopsAndZeroesThePoseAndTheWheelsStartAgain) {
    StationBench moving;
    moving.reachWondering();
    moving.values.robotX = 1;
    moving.values.robotY = 2;
    moving.values.robotTheta = 0.5;
    moving.values.fixX = 9;
    moving.take();
    moving.gui.Stoprobot.operatorClick();
    EXPECT_THAT(moving.take(), ElementsAre("myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1"));
    EXPECT_EQ(moving.values.robotX, 0);
    EXPECT_EQ(moving.values.robotY, 0);
    EXPECT_EQ(moving.values.robotTheta, 0);
    EXPECT_EQ(moving.values.fixX, 9);
    moving.clock.runFor(100);
    EXPECT_GE(moving.myRobot.count("SetDriveVelocities"), 1U);
    EXPECT_TRUE(moving.gui.teleoperationtask->active());
}

TEST_F(MotionSession, TheSearchKeyHasNoLastingEffectWhileTheDriverIsActive) {
    StationBench moving;
    moving.reachJoy();
    moving.values.gasLevel = 10000;
    moving.values.brakeLevel = 10000;
    moving.tick();
    moving.gui.cmdTOB.operatorClick();
    EXPECT_TRUE(moving.values.vfhActive);
    moving.tick();
    EXPECT_FALSE(moving.values.vfhActive);
}

TEST_F(MotionSession, TheAvoidanceKeyTogglesTheSwitchAndShowsIt) {
    EXPECT_TRUE(values.caEnabled);
    gui.cmdEnCA.operatorClick();
    EXPECT_FALSE(values.caEnabled);
    EXPECT_EQ(gui.cmdEnCA.caption(), "Disable");
    gui.cmdEnCA.operatorClick();
    EXPECT_TRUE(values.caEnabled);
    EXPECT_EQ(gui.cmdEnCA.caption(), "Enable");
}

TEST_F(MotionSession, TheAvoidanceKeyChangesNothingOfTheAvoidance) {
    StationBench moving;
    moving.reachWondering();
    moving.gui.cmdEnCA.operatorClick();
    moving.tick(2);
    EXPECT_FALSE(moving.values.caEnabled);
    EXPECT_TRUE(moving.values.vfhActive);
}

}  // namespace
}  // namespace quorrin
