#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/anti_stuck.h"
#include "navigation/gps.h"
#include "navigation/sensor_map_builder.h"
#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

struct Shutdown : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    void exit() {
        bench.untilEnd([this] { gui.cmdExit.operatorClick(); });
    }
    void closeWindow() {
        bench.untilEnd([this] { gui.operatorClose(); });
    }
    void noteSockets() {
        bench.station.seams.dropRemoteSession = [this] { bench.log.push_back("drop remote session"); };
        bench.station.seams.closeAllSockets = [this] { bench.log.push_back("close all sockets"); };
    }
};

TEST_F(Shutdown, WithoutAMotionLinkItSkipsTheStops) {
    noteSockets();
    bench.startSession();
    bench.take();
    const auto start = bench.clock.nowMs();
    exit();
    EXPECT_THAT(bench.take(), ElementsAre("robotTI.StopSoundPlayback", "drop remote session",
                                          "close all sockets", "no window Quorrin Gateway_MotionControl",
                                          "close Quorrin Gateway_Multimedia", "ended"));
    EXPECT_EQ(bench.clock.nowMs() - start, 1000);
}

TEST_F(Shutdown, WithAMotionLinkItStopsTheDrivesTwice) {
    noteSockets();
    bench.reachWondering();
    bench.take();
    const auto start = bench.clock.nowMs();
    exit();
    EXPECT_THAT(bench.take(),
                ElementsAre("robotTI.StopSoundPlayback", "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                            "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1", "drop remote session",
                            "close all sockets", "close Quorrin Gateway_MotionControl",
                            "close Quorrin Gateway_Multimedia", "ended"));
    EXPECT_EQ(bench.clock.nowMs() - start, 1200);
}

TEST_F(Shutdown, ClosingTheWindowSuspendsTheSessionBefore) {
    bench.reachWondering();
    bench.take();
    closeWindow();
    const auto log = bench.take();
    // Its own stop, suspendRobot's and the driver's; then the routine's two.
    EXPECT_EQ(std::count(log.begin(), log.end(), "myRobot.SuspendDrive 0"), 5);
    EXPECT_EQ(log.back(), "ended");
    EXPECT_FALSE(values.tickEnabled || values.displayEnabled || values.antiStuckEnabled);
}

TEST_F(Shutdown, ClosingTheWindowWithoutAMotionLinkSuspendsNothing) {
    bench.startSession();
    bench.take();
    closeWindow();
    EXPECT_THAT(bench.take(), Not(Contains("myRobot.SuspendDrive 0")));
    EXPECT_TRUE(values.tickEnabled);
}

TEST_F(Shutdown, ClosingTheWindowClosesTheSecondaryFormsInTheirOrder) {
    bench.station.seams.closeAbout = [this] { bench.log.push_back("about"); };
    bench.station.seams.closeZoomCamera = [this] { bench.log.push_back("zoom"); };
    bench.startSession();
    gui.cmdShowControlPanel.operatorClick();
    values.aboutOpen = values.zoomCameraOpen = true;
    bench.take();
    closeWindow();
    const auto log = bench.take();
    ASSERT_GE(log.size(), 2U);
    EXPECT_EQ(log[0], "about");
    EXPECT_EQ(log[1], "zoom");
    EXPECT_FALSE(bench.station.controlPanel.shown());
    EXPECT_FALSE(values.aboutOpen || values.zoomCameraOpen || values.manualPanelActive);
}

TEST_F(Shutdown, SecondaryFormsThatAreNotOpenAreLeftAlone) {
    bench.station.seams.closeAbout = [this] { bench.log.push_back("about"); };
    bench.startSession();
    closeWindow();
    EXPECT_THAT(bench.take(), Not(Contains("about")));
}

TEST_F(Shutdown, ClearsTheRunningFlags) {
    bench.startSession();
    values.videoClientConnected = true;
    exit();
    EXPECT_FALSE(values.videoClientConnected);
    EXPECT_FALSE(gui.formRunning);
}

TEST_F(Shutdown, EndsTheTasks) {
    bench.reachWondering();
    exit();
    EXPECT_EQ(bench.station.navigator(), nullptr);
    EXPECT_EQ(bench.station.gps(), nullptr);
    EXPECT_EQ(bench.station.sensorMap(), nullptr);
    EXPECT_EQ(bench.station.antiStuck(), nullptr);
    EXPECT_EQ(gui.teleoperationtask, nullptr);
}

TEST_F(Shutdown, EndsADriverThatSomebodyElseStillHolds) {
    bench.reachWondering();
    const auto held = gui.teleoperationtask;
    ASSERT_NE(held->navigator(), nullptr);
    exit();
    EXPECT_EQ(held->navigator(), nullptr);
    bench.take();
    bench.clock.runFor(1000);
    EXPECT_THAT(bench.take(), testing::IsEmpty());
}

TEST_F(Shutdown, ClosingTheWindowEndsARemoteClientsHold) {
    bench.startSession();
    values.manualPanelActive = true;  // the panel itself is not open
    closeWindow();
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(Shutdown, NothingIsAskedOfTheRobotAfterwards) {
    bench.reachWondering();
    exit();
    bench.take();
    bench.clock.runFor(5000);
    EXPECT_THAT(bench.take(), testing::IsEmpty());
}

// A script or an operator may ask again while the routine waits or closes the gateways.
TEST_F(Shutdown, RunsOnceWhenAYieldAsksAgain) {
    bench.reachWondering();
    const auto now = bench.clock.nowMs();
    for (int i = 1; i <= 3; ++i) bench.clock.arriveAt(now + 100 * i, [this] { gui.cmdExit.operatorClick(); });
    bench.clock.arriveAt(now + 400, [this] { gui.operatorClose(); });
    bench.take();
    exit();
    const auto log = bench.take();
    EXPECT_EQ(std::count(log.begin(), log.end(), "robotTI.StopSoundPlayback"), 1);
    EXPECT_EQ(std::count(log.begin(), log.end(), "ended"), 1);
}

// The tick's own wait for a closing gateway lets an exit in; nothing of the tick may run on after it.
TEST_F(Shutdown, InsideATicksYieldEndsTheTickToo) {
    bench.reachWondering();
    values.requestIdle = true;
    const auto tickAt = (bench.clock.nowMs() / 100 + 1) * 100;
    bench.clock.arriveAt(tickAt + 300, [this] { gui.cmdExit.operatorClick(); });
    bench.untilEnd([this] { bench.tick(20); });
    EXPECT_TRUE(bench.ended);
    EXPECT_EQ(bench.log.back(), "ended");
    EXPECT_NE(values.robotMode, kModeIdle);
}

TEST_F(Shutdown, FramesAndKeysInItsLastYieldHarmNothing) {
    bench.startSession();
    values.autoStartPending = true;
    values.tiLinkUp = false;
    bench.robotTI.PowerRefAdc = 2048;
    bench.robotTI.DcInAdc = 3000;
    const auto now = bench.clock.nowMs();
    for (int i = 0; i < 12; ++i) FakeLink::arriveAt(bench.clock, now + 500, bench.robotTI.PowerFrame);
    bench.clock.arriveAt(now + 600, [this] { gui.cmdStart.operatorClick(); });
    exit();
    EXPECT_TRUE(bench.ended);
    EXPECT_EQ(bench.log.back(), "ended");
}

TEST_F(Shutdown, AnEndThatReturnsStillEndsTheCourse) {
    bench.startSession();
    EXPECT_THROW(gui.cmdExit.operatorClick(), ProgramEnd);
    EXPECT_TRUE(bench.ended);
}

TEST_F(Shutdown, CancellingTheLoginEndsTheProgram) {
    bench.station.startAtLogin();
    EXPECT_THROW(bench.station.login.cmdCancel.operatorClick(), ProgramEnd);
    EXPECT_THAT(bench.take(), ElementsAre("ended"));
}

TEST_F(Shutdown, AStationThatGoesLeavesItsLinksWithoutHandlers) {
    VirtualClock clock;
    FakeLink myRobot;
    FakeLink robotTI;
    MemoryFiles files;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    {
        Station station({clock, files, programs, boxes, myRobot, robotTI, {"/a", "/w", "/v", "/p"}, {}});
        station.startAtMainForm();
    }
    myRobot.take();
    robotTI.take();
    myRobot.SensorFrame.raise();
    robotTI.ImageFrame.raise();
    clock.runFor(2000);
    EXPECT_TRUE(myRobot.operations().empty());
    EXPECT_TRUE(robotTI.operations().empty());
}

}  // namespace
}  // namespace quorrin
