#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

// Drives the tick alone: what navigation sends in between is left out of the log.
struct ModeChange : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    // What one tick asked of the world, velocities and head left out.
    std::vector<std::string> tickLog() {
        bench.take();
        bench.tick();
        std::vector<std::string> kept;
        for (const std::string& line : bench.take())
            if (line.find("SetDriveVelocities") == std::string::npos &&
                line.find("MoveServosTimed 3900 3650 3400 -32768 3500 3200 300") == std::string::npos)
                kept.push_back(line);
        return kept;
    }
    std::string thresholds() const {
        return gui.txtTh1.text() + "," + gui.txtTh2.text() + "," + gui.txtTh3.text() + "," +
               gui.txtTh4.text();
    }
    bool anyRequest() const { return values.requestIdle || values.requestWander || values.requestJoy; }
    void spoilThresholds() { gui.setThresholds(1, 2, 8, 9); }
};

TEST_F(ModeChange, WonderingShowsItsPicture) {
    bench.reachWondering();
    bench.tick();
    EXPECT_EQ(gui.cmdChEn.picture(), 1);
}

TEST_F(ModeChange, WonderingGoesToIdleInItsOrder) {
    bench.reachWondering();
    bench.tick();
    values.requestIdle = true;
    values.requestJoy = true;
    values.requestWander = true;
    values.motWarmupCount = 3;
    const auto start = bench.clock.nowMs();
    EXPECT_THAT(tickLog(), ElementsAre("myRobot.MoveServosTimed 3900 3650 3400 -32768 3500 3200 500",
                                       "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                                       "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                                       "close Quorrin Gateway_MotionControl", "robotTI.WritePowerByte 59"));
    EXPECT_EQ(bench.clock.nowMs() - start, 600);
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_EQ(values.previousMode, kModeWondering);
    EXPECT_EQ(gui.txtRobotStatus.text(), "IDLE");
    EXPECT_FALSE(anyRequest());
    EXPECT_FALSE(values.useWanderInput);
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_EQ(values.motWarmupCount, 0);
    EXPECT_FALSE(gui.teleoperationtask->active());
}

TEST_F(ModeChange, WonderingGoesToJoyInItsOrder) {
    bench.reachWondering();
    bench.tick();
    spoilThresholds();
    values.requestJoy = true;
    values.landmarkLocked = false;
    values.landmarkRunEnabled = true;
    EXPECT_THAT(tickLog(), ElementsAre("myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1"));
    EXPECT_EQ(values.robotMode, kModeJoy);
    EXPECT_EQ(values.previousMode, kModeWondering);
    EXPECT_EQ(gui.txtRobotStatus.text(), "JOY");
    EXPECT_EQ(thresholds(), "41,100,3,3");
    EXPECT_TRUE(values.landmarkLocked);
    EXPECT_FALSE(values.landmarkRunEnabled);
    EXPECT_FALSE(values.useWanderInput);
    EXPECT_FALSE(anyRequest());
    EXPECT_TRUE(gui.teleoperationtask->active());
}

TEST_F(ModeChange, LeavingWonderingForIdleTakesTheRobotFromTheStick) {
    bench.reachWondering();
    values.joystickActive = true;
    values.joyOverride = true;  // has had its effect already
    values.requestIdle = true;
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_FALSE(values.joystickActive);
}

TEST_F(ModeChange, JoyContinuesADriverThatWasHeld) {
    bench.reachWondering();
    gui.teleoperationtask->suspend();
    values.requestJoy = true;
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeJoy);
    EXPECT_TRUE(gui.teleoperationtask->active());
}

TEST_F(ModeChange, WonderingTestsIdleBeforeJoy) {
    bench.reachWondering();
    values.requestIdle = true;
    values.requestJoy = true;
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeIdle);
}

TEST_F(ModeChange, ARequestForTheCurrentModeStaysSet) {
    bench.reachWondering();
    values.requestWander = true;
    bench.tick(10);
    EXPECT_TRUE(values.requestWander);
    EXPECT_EQ(values.robotMode, kModeWondering);
}

TEST_F(ModeChange, JoyShowsItsPicture) {
    bench.reachJoy();
    bench.tick();
    EXPECT_EQ(gui.cmdChEn.picture(), 3);
}

TEST_F(ModeChange, JoyGoesToIdleInItsOrderAndKeepsTheWanderInput) {
    bench.reachJoy();
    bench.tick();
    values.requestIdle = true;
    values.useWanderInput = true;
    EXPECT_THAT(tickLog(), ElementsAre("myRobot.MoveServosTimed 3900 3650 3400 -32768 3500 3200 500",
                                       "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                                       "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                                       "close Quorrin Gateway_MotionControl", "robotTI.WritePowerByte 59"));
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_EQ(values.previousMode, kModeJoy);
    EXPECT_EQ(gui.txtRobotStatus.text(), "IDLE");
    EXPECT_TRUE(values.useWanderInput);
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_FALSE(anyRequest());
}

TEST_F(ModeChange, LeavingJoyForIdleHidesThePanelAndKeepsItsKeysCaption) {
    bench.reachWondering();
    gui.cmdShowControlPanel.operatorClick();
    bench.tick(2);
    ASSERT_EQ(values.robotMode, kModeJoy);
    values.requestIdle = true;
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(bench.station.controlPanel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
}

TEST_F(ModeChange, JoyGoesToWonderingInItsOrder) {
    bench.reachJoy();
    bench.tick();
    spoilThresholds();
    values.requestWander = true;
    EXPECT_THAT(tickLog(), ElementsAre("myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1"));
    EXPECT_EQ(values.robotMode, kModeWondering);
    EXPECT_EQ(values.previousMode, kModeJoy);
    EXPECT_EQ(gui.txtRobotStatus.text(), "wondering");
    EXPECT_EQ(thresholds(), "40,100,3,3");
    EXPECT_TRUE(values.useWanderInput);
    EXPECT_FALSE(anyRequest());
    EXPECT_TRUE(gui.teleoperationtask->active());
}

TEST_F(ModeChange, LeavingJoyTakesTheRobotFromTheStick) {
    for (const bool toIdle : {true, false}) {
        StationBench other;
        other.reachJoy();
        other.values.joystickActive = true;
        other.tick();  // the override asks for JOY, which is there already
        other.values.requestIdle = toIdle;
        other.values.requestWander = !toIdle;
        other.tick();
        EXPECT_FALSE(other.values.joystickActive);
    }
}

TEST_F(ModeChange, TheTwoEntriesIntoJoyDifferInTheLandmarkRun) {
    bench.reachJoy();
    EXPECT_TRUE(values.landmarkRunEnabled);
    StationBench other;
    other.reachWondering();
    other.values.requestJoy = true;
    other.tick();
    EXPECT_FALSE(other.values.landmarkRunEnabled);
}

TEST_F(ModeChange, NoModeIsNoStep) {
    bench.startSession();
    values.robotMode = 1;
    bench.take();
    bench.tick(5);
    EXPECT_EQ(values.robotMode, 1);
    EXPECT_EQ(values.startStep, 0);
    EXPECT_THAT(bench.take(), Not(Contains("start QuorrinGatewaymot")));
}

TEST_F(ModeChange, TheModeKeyAsksForWanderInIdleAndTakesTheRobotFromTheStick) {
    bench.startSession();
    values.requestWander = false;
    values.requestIdle = true;
    values.requestJoy = true;
    values.joystickActive = true;
    gui.cmdChEn.operatorClick();
    EXPECT_TRUE(values.requestWander);
    EXPECT_FALSE(values.requestIdle || values.requestJoy || values.joystickActive);
}

TEST_F(ModeChange, TheModeKeyAsksForIdleInAnyOtherMode) {
    bench.reachWondering();
    values.joystickActive = true;
    values.requestJoy = true;
    values.requestWander = true;
    gui.cmdChEn.operatorClick();
    EXPECT_TRUE(values.requestIdle);
    EXPECT_FALSE(values.requestWander || values.requestJoy);
    EXPECT_TRUE(values.joystickActive);
}

TEST_F(ModeChange, OpeningThePanelInWonderingMovesToJoyAndHidingItGoesBack) {
    bench.reachWondering();
    gui.cmdShowControlPanel.operatorClick();
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeJoy);
    bench.tick(20);
    EXPECT_EQ(values.robotMode, kModeJoy);
    gui.cmdShowControlPanel.operatorClick();
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeWondering);
}

TEST_F(ModeChange, ClosingThePanelResumesTheWander) {
    bench.reachWondering();
    gui.cmdShowControlPanel.operatorClick();
    bench.tick(2);
    bench.station.controlPanel.cmdClose.operatorClick();
    EXPECT_FALSE(gui.teleoperationtask->active());
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeWondering);
    EXPECT_TRUE(gui.teleoperationtask->active());
}

TEST_F(ModeChange, OpeningThePanelInIdleBringsUpJoyAndHidingItGoesBackToIdle) {
    bench.startSession();
    values.requestWander = false;
    values.previousMode = kModeIdle;
    gui.cmdShowControlPanel.operatorClick();
    bench.tick(1);
    bench.sensorFrames(11);
    bench.tick(39);
    ASSERT_EQ(values.robotMode, kModeJoy);
    gui.cmdShowControlPanel.operatorClick();
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeIdle);
}

}  // namespace
}  // namespace quorrin
