#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;

struct FrameEvents : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    void dock(int batteryTemperature) {
        bench.robotTI.PowerRefAdc = 2048;  // 3 volts of reference
        bench.robotTI.DcInAdc = 3000;      // 17.6 volts
        bench.robotTI.Battery1TempAdc = batteryTemperature;
        bench.robotTI.Battery2TempAdc = batteryTemperature;
    }
};

TEST_F(FrameEvents, TheEleventhSensorFrameRaisesTheMotionLink) {
    bench.startSession();
    bench.tick();
    bench.sensorFrames(10);
    EXPECT_FALSE(values.motLinkUp);
    bench.sensorFrames(1);
    EXPECT_TRUE(values.motLinkUp);
}

TEST_F(FrameEvents, OtherMotionFramesDoNotRaiseTheLink) {
    bench.startSession();
    bench.tick();
    for (int i = 0; i < 20; ++i) {
        bench.myRobot.IrFrame.raise();
        bench.myRobot.MotorFrame.raise();
    }
    EXPECT_FALSE(values.motLinkUp);
    EXPECT_TRUE(values.encoderDataValid);
}

TEST_F(FrameEvents, AnIrFrameStoresItsRanges) {
    bench.startSession();
    bench.myRobot.IrAdc1 = bench.myRobot.IrAdc6 = 1000;
    bench.myRobot.IrFrame.raise();
    EXPECT_GT(values.irRange[1], 0.23);
    EXPECT_GT(values.irRange[6], 0.23);
    EXPECT_EQ(values.irRange[0], 0);
}

TEST_F(FrameEvents, APresenceIsCountedAsAChange) {
    bench.startSession();
    bench.myRobot.HumanAdc1 = 4000;
    bench.sensorFrames(1);
    EXPECT_EQ(gui.txtHumanLocation.text(), "3");
    EXPECT_EQ(gui.txtChangeCount.text(), "1");
    bench.sensorFrames(1);
    EXPECT_EQ(gui.txtChangeCount.text(), "1");
}

TEST_F(FrameEvents, AnOverloadedDriveStopsBoth) {
    bench.startSession();
    bench.myRobot.DriveCurrentLeft = 7280;  // 10 A
    bench.take();
    for (int i = 0; i < 10; ++i) bench.myRobot.MotorFrame.raise();
    EXPECT_TRUE(values.motionInhibit);
    EXPECT_THAT(bench.take(), Contains("myRobot.SuspendDrive 1"));
}

TEST_F(FrameEvents, ACoolDockSendsTheWanderingRobotToIdleAndCharges) {
    bench.reachWondering();
    dock(900);
    bench.powerFrames(1);
    EXPECT_TRUE(values.requestIdle);
    EXPECT_FALSE(gui.teleoperationtask->active());
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeIdle);
    EXPECT_EQ(values.powerByte, 63 - 4 + 192);
}

TEST_F(FrameEvents, ADockedRobotThatIsAskedToWanderComesBackToIdle) {
    bench.startSession();
    dock(900);
    bench.tick(2);
    bench.sensorFrames(11);
    for (int i = 0; i < 38; ++i) {
        bench.powerFrames(1);
        bench.tick();
    }
    EXPECT_EQ(values.robotMode, kModeWondering);
    bench.powerFrames(1);
    bench.tick();
    EXPECT_EQ(values.robotMode, kModeIdle);
}

TEST_F(FrameEvents, AHotBatteryOnADockStopsChargingWithinATick) {
    bench.startSession();
    values.requestWander = false;
    dock(900);
    bench.powerFrames(1);
    bench.tick();
    dock(700);
    bench.powerFrames(1);
    bench.take();
    bench.tick();
    EXPECT_THAT(bench.take(), Contains("robotTI.WritePowerByte 59"));
}

TEST_F(FrameEvents, UndockingAndTheModeKeyBringTheWanderBack) {
    bench.reachWondering();
    dock(900);
    bench.powerFrames(1);
    bench.tick();
    ASSERT_EQ(values.robotMode, kModeIdle);
    bench.robotTI.DcInAdc = 0;
    bench.powerFrames(1);
    gui.cmdChEn.operatorClick();
    bench.tick(7);
    bench.sensorFrames(11);
    bench.tick(40);
    EXPECT_EQ(values.robotMode, kModeWondering);
}

TEST_F(FrameEvents, StopChargeGoesOutAtOnceAndLeavesTheCache) {
    bench.startSession();
    bench.tick();
    values.powerByte = 255;
    bench.take();
    gui.cmdStopChg.click();
    EXPECT_THAT(bench.take(), ElementsAre("robotTI.WritePowerByte 63"));
    EXPECT_EQ(gui.lblTest.caption(), "63");
}

TEST_F(FrameEvents, AWarningLampBlinksAtItsTimer) {
    bench.startSession();
    values.battery1Flash = true;
    gui.shpBatteryStatus(0).setFill(8454016);
    bench.clock.runFor(200);
    EXPECT_EQ(gui.shpBatteryStatus(0).fill(), 255);
    bench.clock.runFor(200);
    EXPECT_EQ(gui.shpBatteryStatus(0).fill(), 8454016);
}

TEST_F(FrameEvents, TheMouthFlapsAtItsTimerAndComesToRest) {
    bench.startSession();
    values.mouthSteps = 1;
    gui.tmrMouth.setRunning(true);
    values.mouthCmd = 3400;
    bench.clock.runFor(300);
    EXPECT_EQ(values.mouthCmd, 2600);
    bench.clock.runFor(300);
    EXPECT_EQ(values.mouthCmd, 3400);
    EXPECT_FALSE(gui.tmrMouth.running());
}

TEST_F(FrameEvents, ACameraFrameIsArchivedAndTheNextOneAskedFor) {
    bench.station.seams.image.encodeCaptureFrame = [this] { bench.log.push_back("capture"); };
    bench.station.startAtMainForm();
    values.frameWatchdog = 3;
    bench.take();
    bench.robotTI.ImageFrame.raise();
    EXPECT_THAT(bench.take(), ElementsAre("capture", "robotTI.RequestImage"));
    EXPECT_EQ(values.frameWatchdog, 0);
}

TEST_F(FrameEvents, ARobotSoundGoesToTheRingWhileTheOperatorListens) {
    bench.station.startAtMainForm();
    int queued = 0;
    bench.station.seams.sound.queueRobotSound = [&] { ++queued; };
    bench.robotTI.SoundBufferLength = 640;
    bench.robotTI.SoundFrame.raise();
    EXPECT_EQ(values.robotSoundLength, 640);
    EXPECT_EQ(queued, 0);
    bench.station.seams.sound.listeningToRobot = true;
    bench.robotTI.SoundFrame.raise();
    EXPECT_EQ(queued, 1);
}

}  // namespace
}  // namespace quorrin
