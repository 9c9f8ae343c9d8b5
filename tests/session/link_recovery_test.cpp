#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

struct LinkRecovery : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    // The tick that finds the links silent is the next one.
    void silentSession() {
        bench.reachWondering();
        bench.tick();
        values.tiSilentTicks = 200;
        values.motSilentTicks = 0;
        bench.take();
    }
    static std::vector<std::string> withoutVelocities(const std::vector<std::string>& log) {
        std::vector<std::string> kept;
        for (const std::string& line : log)
            if (line.find("SetDriveVelocities") == std::string::npos) kept.push_back(line);
        return kept;
    }
};

TEST_F(LinkRecovery, RecyclesTheGatewaysInItsOrder) {
    silentSession();
    // The watches of the log note when things happen.
    const auto at = [this] { return " @" + std::to_string(bench.clock.nowMs()); };
    bench.programs.onStart = [&](const std::string& name) { bench.log.push_back("start " + name + at()); };
    bench.programs.onClose = [&](const std::string& title, bool) {
        bench.log.push_back("close " + title + at());
    };
    const auto tickAt = (bench.clock.nowMs() / 100 + 1) * 100;
    bench.clock.runUntil(tickAt);
    EXPECT_THAT(withoutVelocities(bench.take()),
                ElementsAre("robotTI.WritePowerByte 56",
                            "close Quorrin Gateway_MotionControl @" + std::to_string(tickAt + 1000),
                            "close Quorrin Gateway_Multimedia @" + std::to_string(tickAt + 1000),
                            "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                            "start QuorrinGatewayTI @" + std::to_string(tickAt + 3000)));
    EXPECT_EQ(bench.clock.nowMs(), tickAt + 4000);
}

TEST_F(LinkRecovery, LeavesTheSessionInSuspense) {
    silentSession();
    values.startStep = 7;
    gui.resetCnt = 3;
    values.motWarmupCount = 4;
    values.tiWarmupCount = 5;
    bench.tick();
    EXPECT_EQ(values.motSilentTicks, 0);
    EXPECT_EQ(values.tiSilentTicks, 0);
    EXPECT_TRUE(gui.resetMOTTI);
    EXPECT_EQ(gui.resetCnt, 0);
    EXPECT_EQ(values.startStep, 0);
    EXPECT_EQ(values.powerByte, 56);
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_FALSE(values.tiLinkUp);
    EXPECT_EQ(values.motWarmupCount, 0);
    EXPECT_EQ(values.tiWarmupCount, 0);
    EXPECT_FALSE(gui.teleoperationtask->active());
    EXPECT_FALSE(values.antiStuckEnabled);
    EXPECT_TRUE(values.autoStartPending);
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
}

TEST_F(LinkRecovery, TheTickIsOverAfterIt) {
    silentSession();
    values.joystickActive = true;  // the arbitration would ask for JOY
    bench.tick();
    EXPECT_FALSE(values.requestJoy);
    // The cache still holds the old byte; only the next tick's flush notices.
    EXPECT_EQ(gui.lblTest.caption(), "63");
    bench.take();
    bench.tick();
    EXPECT_THAT(bench.take(), Contains("robotTI.WritePowerByte 56"));
    EXPECT_EQ(gui.lblTest.caption(), "56");
}

TEST_F(LinkRecovery, ASilentMotionLinkIsEnough) {
    bench.reachWondering();
    for (int i = 0; i < 250 && values.tickEnabled; ++i) {
        bench.powerFrames(1);
        bench.tick();
    }
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
}

TEST_F(LinkRecovery, PowerFramesThatStopAreEnough) {
    bench.reachWondering();
    for (int i = 0; i < 250 && values.tickEnabled; ++i) {
        bench.sensorFrames(1);
        bench.tick();
    }
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
}

TEST_F(LinkRecovery, ComesAfterExactly201SilentTicks) {
    bench.reachWondering();
    bench.powerFrames(1);
    for (int i = 0; i < 200; ++i) {
        bench.sensorFrames(1);
        bench.tick();
        ASSERT_TRUE(values.tickEnabled) << i;
        ASSERT_EQ(gui.lblCom.caption(), std::to_string(i + 1));
    }
    bench.tick();
    EXPECT_FALSE(values.tickEnabled);
}

TEST_F(LinkRecovery, ALinkThatDiesBeforeItWasEverUpIsWaitedFor) {
    bench.startSession();
    for (int i = 0; i < 300; ++i) {
        bench.powerFrames(1);
        bench.tick();
    }
    EXPECT_TRUE(values.tickEnabled);
    EXPECT_FALSE(gui.resetMOTTI);
}

TEST_F(LinkRecovery, TheEleventhPowerFrameAfterItRestartsTheSession) {
    silentSession();
    bench.tick();
    bench.powerFrames(10);
    EXPECT_FALSE(values.tickEnabled);
    bench.powerFrames(1);
    EXPECT_TRUE(values.tickEnabled);
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_FALSE(gui.resetMOTTI);
    bench.tick(2);
    bench.sensorFrames(11);
    for (int i = 0; i < 38; ++i) {
        bench.powerFrames(1);
        bench.tick();
    }
    EXPECT_EQ(values.robotMode, kModeWondering);
    EXPECT_EQ(gui.txtRobotStatus.text(), "wondering");
}

TEST_F(LinkRecovery, ARecoveryInMidSequenceBeginsTheSequenceAnew) {
    bench.startSession();
    bench.tick(2);
    bench.sensorFrames(11);
    bench.tick(5);
    values.tiSilentTicks = 200;
    bench.tick();
    bench.tick();  // what fell due during the recovery
    bench.powerFrames(11);
    bench.take();
    bench.tick();
    EXPECT_EQ(values.startStep, 1);
    EXPECT_THAT(bench.take(), Contains("start QuorrinGatewaymot"));
}

TEST_F(LinkRecovery, TenInARowAllComeBack) {
    bench.startSession();
    for (int round = 0; round < 10; ++round) {
        for (int i = 0; i < 45; ++i) {
            bench.sensorFrames(11);
            bench.powerFrames(1);
            bench.tick();
        }
        ASSERT_EQ(values.robotMode, kModeWondering) << round;
        for (int i = 0; i < 201; ++i) {
            bench.powerFrames(1);
            bench.tick();
        }
        ASSERT_EQ(gui.txtRobotStatus.text(), "comm wrong") << round;
        bench.powerFrames(11);
    }
}

TEST_F(LinkRecovery, ComesAfterExactly201SilentTicksOfTheMotionLink) {
    bench.reachWondering();
    bench.sensorFrames(1);
    for (int i = 0; i < 200; ++i) {
        bench.powerFrames(1);
        // Other frames of the link do not help.
        bench.myRobot.IrFrame.raise();
        bench.myRobot.MotorFrame.raise();
        bench.tick();
        ASSERT_TRUE(values.tickEnabled) << i;
        ASSERT_EQ(values.motSilentTicks, i + 1);
    }
    bench.tick();
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
}

TEST_F(LinkRecovery, PowerFramesThatStopAreNoticedInIdleToo) {
    bench.startSession();
    values.requestWander = false;
    bench.tick(200);
    EXPECT_TRUE(values.tickEnabled);
    bench.tick();
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
}

// Frames that waited during the first block come in while the old gateways are told to close. They count
// towards the next link and start nothing, since the session is not waiting for a start yet.
TEST_F(LinkRecovery, FramesInItsYieldsCountAndStartNothing) {
    silentSession();
    const auto tickAt = (bench.clock.nowMs() / 100 + 1) * 100;
    for (int i = 1; i <= 4; ++i) FakeLink::arriveAt(bench.clock, tickAt + 200 * i, bench.robotTI.PowerFrame);
    bench.tick();
    EXPECT_EQ(values.tiWarmupCount, 4);
    EXPECT_FALSE(values.tiLinkUp);
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_TRUE(values.autoStartPending);
    bench.powerFrames(7);
    EXPECT_TRUE(values.tickEnabled);
}

// The reason why power frames should not come faster than ten a second: eleven of them inside the recovery
// raise the link before the session waits for its start, and then nothing but the START key starts it.
TEST_F(LinkRecovery, ElevenFramesInItsYieldsLeaveTheStartToTheOperator) {
    silentSession();
    const auto tickAt = (bench.clock.nowMs() / 100 + 1) * 100;
    for (int i = 1; i <= 11; ++i) FakeLink::arriveAt(bench.clock, tickAt + 50 * i, bench.robotTI.PowerFrame);
    bench.tick();
    EXPECT_TRUE(values.tiLinkUp);
    bench.powerFrames(40);
    bench.tick(300);
    EXPECT_FALSE(values.tickEnabled);
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
    gui.cmdStart.operatorClick();
    EXPECT_TRUE(values.tickEnabled);
}

}  // namespace
}  // namespace quorrin
