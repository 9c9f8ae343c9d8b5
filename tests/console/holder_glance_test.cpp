#include "console/holder_glance.h"

#include <gtest/gtest.h>

#include "support/station_bench.h"

namespace quorrin {
namespace {

struct HolderGlance : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    Glance holder() { return holderGlance(values, gui, bench.station.controlPanel); }
    void clientDrives() {
        gui.ConnectionList.add("192.168.0.9", 1);
        values.manualPanelActive = true;
        values.remoteCommandActive = true;
    }
};

TEST_F(HolderGlance, BeforeASessionNobodyHoldsTheRobot) {
    bench.station.startAtMainForm();
    EXPECT_EQ(holder().word, "nobody");
    EXPECT_EQ(holder().tone, Tone::off);
}

TEST_F(HolderGlance, AWanderingRobotDrivesByItself) {
    bench.reachWondering();
    EXPECT_EQ(holder().word, "by itself");
}

TEST_F(HolderGlance, TheOpenedPanelHoldsTheRobotAndSoonDrivesIt) {
    bench.reachWondering();
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_EQ(holder().word, "control panel");
    EXPECT_EQ(holder().detail, "holds the robot; it is not in JOY yet");
    bench.tick(2);
    ASSERT_EQ(values.robotMode, kModeJoy);
    EXPECT_EQ(holder().detail, "drives the robot");
    gui.cmdShowControlPanel.operatorClick();
    bench.tick(2);
    EXPECT_EQ(holder().word, "by itself");
}

TEST_F(HolderGlance, TheJoystickHoldsTheRobot) {
    bench.reachJoy();
    values.joystickActive = true;
    EXPECT_EQ(holder().word, "joystick");
    EXPECT_EQ(holder().tone, Tone::good);
}

TEST_F(HolderGlance, ARemoteClientHoldsTheRobot) {
    bench.reachJoy();
    clientDrives();
    EXPECT_EQ(holder().word, "remote client");
    EXPECT_EQ(holder().detail, "drives the robot");
}

TEST_F(HolderGlance, ASilentClientStillHoldsTheRobot) {
    bench.reachJoy();
    clientDrives();
    values.remoteCommandActive = false;
    EXPECT_EQ(holder().word, "remote client");
    EXPECT_EQ(holder().detail, "holds the robot and is silent");
    EXPECT_EQ(holder().tone, Tone::warning);
}

TEST_F(HolderGlance, AHoldWithNobodyConnectedIsToldAsSuch) {
    bench.reachJoy();
    clientDrives();
    gui.ConnectionList.remove(0);
    EXPECT_EQ(holder().word, "nobody");
    EXPECT_EQ(holder().detail, "held, and nobody is connected");
    EXPECT_EQ(holder().tone, Tone::bad);
}

TEST_F(HolderGlance, PanelAndClientTogetherAreBothNamed) {
    bench.reachWondering();
    gui.cmdShowControlPanel.operatorClick();
    clientDrives();
    EXPECT_EQ(holder().word, "control panel");
    EXPECT_EQ(holder().detail, "and the remote client; the last one to command wins");
}

TEST_F(HolderGlance, JoystickModeWithoutAHolderIsAWarning) {
    bench.reachJoy();
    EXPECT_EQ(holder().word, "nobody");
    EXPECT_EQ(holder().tone, Tone::warning);
}

TEST_F(HolderGlance, WithoutAClientTheSignTellsHowCallsAreTaken) {
    EXPECT_EQ(remoteGlance(values, gui).word, "none");
    gui.chkRemote.setChecked(true);
    EXPECT_EQ(remoteGlance(values, gui).detail, "calls are answered");
    gui.chkRemote.setChecked(false);
    EXPECT_EQ(remoteGlance(values, gui).detail, "calls are asked about");
}

TEST_F(HolderGlance, APortThatAnotherHoldsIsToldWithAndWithoutAClient) {
    values.listenProblem = "port 7060 is in use";
    EXPECT_EQ(remoteGlance(values, gui).word, "no calls");
    EXPECT_EQ(remoteGlance(values, gui).detail, "port 7060 is in use");
    EXPECT_EQ(remoteGlance(values, gui).tone, Tone::bad);
    clientDrives();
    EXPECT_EQ(remoteGlance(values, gui).word, "connected");
    EXPECT_EQ(remoteGlance(values, gui).detail, "192.168.0.9; port 7060 is in use");
    EXPECT_EQ(remoteGlance(values, gui).tone, Tone::warning);
}

TEST_F(HolderGlance, AConnectedClientIsNamed) {
    clientDrives();
    EXPECT_EQ(remoteGlance(values, gui).word, "connected");
    EXPECT_EQ(remoteGlance(values, gui).detail, "192.168.0.9");
    gui.ConnectionList.add("192.168.0.10", 2);
    EXPECT_EQ(remoteGlance(values, gui).detail, "192.168.0.9 and 1 more");
    values.remoteCommandActive = false;
    EXPECT_EQ(remoteGlance(values, gui).detail, "192.168.0.9 and 1 more, silent");
}

TEST_F(HolderGlance, CommandsThatNobodyConnectedGaveAreNoConnection) {
    values.remoteCommandActive = true;
    EXPECT_EQ(remoteGlance(values, gui).word, "none");
}

TEST_F(HolderGlance, AStuckRobotNamesTheWheelThatPushes) {
    EXPECT_EQ(stuckGlance(values).word, "free");
    values.inStuck = true;
    values.stuckLeft = true;
    EXPECT_EQ(stuckGlance(values).word, "STUCK");
    EXPECT_EQ(stuckGlance(values).detail, "backing out, the left wheel pushes");
    values.stuckRight = true;
    EXPECT_EQ(stuckGlance(values).detail, "backing out, both wheels push");
    values.stuckLeft = false;
    EXPECT_EQ(stuckGlance(values).detail, "backing out, the right wheel pushes");
}

}  // namespace
}  // namespace quorrin
