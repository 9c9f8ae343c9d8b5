#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/program_error.h"
#include "navigation/anti_stuck.h"
#include "navigation/gps.h"
#include "navigation/sensor_map_builder.h"
#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct MainFormLoad : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    void load() { bench.station.startAtMainForm(); }
};

TEST_F(MainFormLoad, AsksTheWorldInItsOrder) {
    auto& seams = bench.station.seams;
    const auto note = [this](const char* what) { return [this, what] { bench.log.push_back(what); }; };
    seams.createWaveStream = note("wave stream");
    seams.setUpJoystick = note("joystick");
    seams.setUpSockets = note("sockets");
    seams.setUpLocalPlayback = note("playback");
    load();
    EXPECT_THAT(bench.take(),
                ElementsAre("wave stream", "start QuorrinGatewayTI", "robotTI.BindGateway ticom",
                            "myRobot.BindGateway motcom", "joystick",
                            // the driver's run: velocity mode for both drives, then it is suspended twice
                            "myRobot.SetDriveControlMode 0 2", "myRobot.SetDriveControlMode 1 2",
                            "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1", "myRobot.SuspendDrive 0",
                            "myRobot.SuspendDrive 1",
                            // suspendRobot: once itself, once by the driver
                            "myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1", "myRobot.SuspendDrive 0",
                            "myRobot.SuspendDrive 1", "sockets", "robotTI.StopSoundCapture", "playback"));
}

TEST_F(MainFormLoad, BlocksOneSecondAndDeliversNothingMeanwhile) {
    std::int64_t seen = -1;
    bench.clock.arriveAt(300, [&] { seen = bench.clock.nowMs(); });
    load();
    EXPECT_EQ(bench.clock.nowMs(), 1000);
    EXPECT_EQ(seen, -1);
    bench.clock.runUntil(1000);
    EXPECT_EQ(seen, 1000);
}

TEST_F(MainFormLoad, ShowsTheFormWhenItIsDone) {
    load();
    EXPECT_TRUE(gui.shown());
    EXPECT_TRUE(gui.formRunning);
}

TEST_F(MainFormLoad, SetsItsStartValues) {
    values.motionInhibit = true;
    values.startStep = 9;
    values.chargeFlash = values.battery1Flash = values.battery2Flash = true;
    values.landmarkSelectPending = true;
    values.previousMode = 0;
    values.useWanderInput = true;
    gui.statusBroadcastTicks = 40;
    gui.statusRecordTail = 1;
    gui.setThresholds(1, 2, 8, 9);
    load();
    EXPECT_FALSE(values.motionInhibit);
    EXPECT_TRUE(values.autoStartPending);
    EXPECT_EQ(values.powerByte, 63);
    EXPECT_EQ(values.startStep, 0);
    EXPECT_FALSE(values.chargeFlash || values.battery1Flash || values.battery2Flash);
    EXPECT_EQ(gui.statusBroadcastTicks, 0);
    EXPECT_EQ(gui.statusRecordTail, 0);
    EXPECT_EQ(values.previousMode, 10);
    EXPECT_EQ(gui.txtTh1.text(), "40");
    EXPECT_EQ(gui.txtTh2.text(), "100");
    EXPECT_EQ(gui.txtTh3.text(), "3");
    EXPECT_EQ(gui.txtTh4.text(), "3");
    EXPECT_TRUE(values.caEnabled);
    EXPECT_FALSE(values.landmarkSelectPending);
    EXPECT_EQ(values.stuckRatioLimit, 0.38);
    EXPECT_FALSE(values.antiStuckEnabled);
    EXPECT_FALSE(values.useWanderInput);
    EXPECT_TRUE(values.videoClientReady);
}

TEST_F(MainFormLoad, ClearsTheFlagsOfAnEarlierLife) {
    gui.Record_Flag = -1;
    values.motLinkUp = values.tiLinkUp = true;
    values.tiWarmupCount = values.motWarmupCount = 5;
    gui.sensorClientConnected = true;
    values.frameWatchdog = 3;
    values.remoteListening = values.videoClientConnected = values.remoteCommandActive = true;
    values.aboutOpen = values.manualPanelActive = values.zoomCameraOpen = true;
    values.pingEnabled = values.tickEnabled = values.displayEnabled = true;
    gui.tmrStartJoystick.setRunning(true);
    load();
    EXPECT_EQ(gui.Record_Flag, 0);
    EXPECT_FALSE(values.motLinkUp || values.tiLinkUp);
    EXPECT_EQ(values.tiWarmupCount, 0);
    EXPECT_EQ(values.motWarmupCount, 0);
    EXPECT_FALSE(gui.sensorClientConnected);
    EXPECT_EQ(values.frameWatchdog, 0);
    EXPECT_FALSE(values.remoteListening || values.videoClientConnected || values.remoteCommandActive);
    EXPECT_FALSE(values.aboutOpen || values.manualPanelActive || values.zoomCameraOpen);
    EXPECT_FALSE(values.pingEnabled || values.tickEnabled || values.displayEnabled);
    EXPECT_FALSE(gui.tmrStartJoystick.running());
}

TEST_F(MainFormLoad, ReadsTheNeutralServos) {
    load();
    EXPECT_EQ(gui.cHeadUpDown, 3900);
    EXPECT_EQ(gui.cHeadLeftRight, 3650);
    EXPECT_EQ(gui.cMouthUpDown, 3400);
    EXPECT_EQ(gui.cEyeUpDown, 3500);
    EXPECT_EQ(gui.cEyeLeftRight, 3200);
    EXPECT_EQ(values.headCmdUpDown, 2000);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
    EXPECT_EQ(values.mouthCmd, 3400);
    EXPECT_EQ(values.eyeUpDownInit, 3500);
    EXPECT_EQ(values.eyeLeftRightInit, 3200);
}

TEST_F(MainFormLoad, AMissingServoFileOrKeyReadsZero) {
    bench.files.put("/app/Quorrinsdk.ini", "[servo1]\ninit=3900\n[servo2]\nmax=1\n");
    load();
    EXPECT_EQ(gui.cHeadUpDown, 3900);
    EXPECT_EQ(gui.cHeadLeftRight, 0);
    EXPECT_EQ(gui.cEyeLeftRight, 0);
}

TEST_F(MainFormLoad, ShowsTheStartPictures) {
    load();
    EXPECT_EQ(gui.imgStatus.number(), 3);
    EXPECT_EQ(gui.inLight.number(), 9);
    EXPECT_EQ(gui.outLight.number(), 6);
    EXPECT_EQ(gui.imgNetwork.number(), 4);
    EXPECT_TRUE(gui.chkRemote.checked());
}

TEST_F(MainFormLoad, ShowsTheImageQuality) {
    load();
    EXPECT_EQ(gui.lblImageQuality.caption(), "75%");
    EXPECT_EQ(values.jpegQuality, 75);
}

TEST_F(MainFormLoad, FillsTheSensorTables) {
    load();
    EXPECT_EQ(values.irRadius[4], 0.12);
    EXPECT_EQ(values.sonarAngle[3], 3.1415926);
}

TEST_F(MainFormLoad, StartsTheTasksWithTheDriverSuspended) {
    load();
    EXPECT_EQ(bench.station.gps()->EstInterval, 50);
    EXPECT_EQ(bench.station.sensorMap()->Status, "go");
    EXPECT_EQ(bench.station.sensorMap()->timeInterval, 100);
    EXPECT_EQ(bench.station.antiStuck()->timeInterval, 200);
    ASSERT_NE(bench.station.navigator(), nullptr);
    EXPECT_EQ(bench.station.navigator()->Status, "run");
    EXPECT_EQ(gui.teleoperationtask->targetDistance, 1.0);
    EXPECT_EQ(gui.teleoperationtask->timeInterval, 100);
    EXPECT_FALSE(gui.teleoperationtask->active());
    EXPECT_EQ(gui.wonderingtask, nullptr);
}

TEST_F(MainFormLoad, MusicMayBePlayedAtOnce) {
    load();
    EXPECT_EQ(gui.txtMusicName.text(), "/app/happy8k.wav");
    EXPECT_TRUE(gui.tbaMusicPlay.enabled());
    EXPECT_FALSE(gui.tbaMusicStop.enabled());
}

TEST_F(MainFormLoad, FoldOutsStartClosed) {
    gui.fraSetting.setVisible(true);
    gui.fraSensor.setVisible(true);
    gui.cmdExpandSetting.setCaption("Close Setting");
    load();
    EXPECT_FALSE(gui.fraSetting.visible());
    EXPECT_FALSE(gui.fraSensor.visible());
    EXPECT_EQ(gui.cmdExpandSetting.caption(), "Open Setting");
}

TEST_F(MainFormLoad, OffersTheStoreDaysFromSevenDown) {
    load();
    EXPECT_THAT(gui.cobStoreDay.items(), ElementsAre("7", "6", "5", "4", "3", "2", "1"));
}

// The bench's day is 2026-11-20.
TEST_F(MainFormLoad, ListsTheArchiveDaysOfTheLastYearNewestFirst) {
    for (const char* day : {"2026-11-20", "2026-11-18", "2025-11-20", "2025-11-19", "2026-11-21"})
        bench.files.createFolder(std::string("/app/catchdata/") + day);
    load();
    EXPECT_THAT(gui.cobAvailDate.items(), ElementsAre("2026-11-20", "2026-11-18", "2025-11-20"));
}

// It counts as enabled, and without a period it does not fire.
TEST_F(MainFormLoad, TheCaptureTimerIsEnabledWithoutAPeriod) {
    load();
    EXPECT_TRUE(gui.tmrCatchPhoto.running());
    EXPECT_EQ(gui.tmrCatchPhoto.interval(), 0);
    bench.files.put("/app/Tempvb_P.jpg", "picture");
    bench.files.createFolder("/app/catchdata");
    bench.clock.runFor(10'000);
    EXPECT_FALSE(bench.files.folderExists("/app/catchdata/2026-11-20"));
}

TEST_F(MainFormLoad, TheSettingsUnfoldAtTheirKey) {
    load();
    gui.cmdExpandSetting.operatorClick();
    EXPECT_TRUE(gui.fraSetting.visible());
    EXPECT_EQ(gui.cmdExpandSetting.caption(), "Close Setting");
}

TEST_F(MainFormLoad, OdometryRunsFromTheLoadOn) {
    load();
    bench.myRobot.MotorFrame.raise();
    bench.clock.runFor(50);
    bench.myRobot.EncoderPositionLeft = -100;
    bench.myRobot.EncoderPositionRight = 100;
    bench.myRobot.MotorFrame.raise();
    bench.clock.runFor(49);
    EXPECT_EQ(values.robotX, 0);
    bench.clock.runFor(1);
    EXPECT_GT(values.robotX, 0.03);
}

// The detector's timer runs; its flag alone holds it back.
TEST_F(MainFormLoad, TheStuckDetectorWaitsForItsFlag) {
    load();
    values.inStuck = true;
    bench.clock.runFor(200);
    EXPECT_FALSE(values.inStuck);
}

TEST_F(MainFormLoad, ANeutralPositionThatDoesNotFitEndsTheProgram) {
    bench.files.put("/app/Quorrinsdk.ini", "[servo1]\ninit=40000\n");
    EXPECT_THROW(load(), ProgramError);
}

TEST_F(MainFormLoad, ListsNothingWithoutAnArchive) {
    gui.fileTolNum = gui.playingNumber = 3;
    gui.VideoPlayMode = "PLAY";
    load();
    EXPECT_THAT(gui.cobAvailDate.items(), IsEmpty());
    EXPECT_FALSE(gui.cmdPlay.enabled() || gui.cmdPause.enabled() || gui.cmdStopReview.enabled() ||
                 gui.cmdForward.enabled() || gui.cmdBackward.enabled());
    EXPECT_EQ(gui.fileTolNum, 0);
    EXPECT_EQ(gui.playingNumber, 0);
    EXPECT_EQ(gui.VideoPlayMode, "");
}

TEST_F(MainFormLoad, LeavesTheSessionSuspended) {
    load();
    EXPECT_FALSE(values.tickEnabled || values.displayEnabled || values.pingEnabled);
    EXPECT_TRUE(values.landmarkLocked);
    EXPECT_FALSE(values.landmarkRunEnabled);
}

TEST_F(MainFormLoad, StartsTheFormsTimers) {
    load();
    EXPECT_TRUE(gui.tmrCatchPhoto.running());
    EXPECT_TRUE(gui.tmrCheckConnection.running());
    EXPECT_TRUE(gui.tmrFlashRed.running());
    EXPECT_TRUE(gui.tmrImage.running());
    EXPECT_EQ(gui.tmrCatchPhoto.interval(), 0);
    EXPECT_EQ(gui.tmrCheckConnection.interval(), 300);
    EXPECT_EQ(gui.tmrFlashRed.interval(), 200);
    EXPECT_EQ(gui.tmrImage.interval(), 500);
    EXPECT_FALSE(gui.tmrServoControl.running() || gui.tmrMouth.running() || gui.tmrHuman.running() ||
                 gui.tmrCharge.running());
}

TEST_F(MainFormLoad, ShowsTheSitesFloorPlan) {
    bench.files.put("/app/office.bmp", "BM");
    bench.files.put("/app/office_s.bmp", "BM");
    load();
    EXPECT_EQ(gui.picRobotMap.file(), "/app/office.bmp");
    EXPECT_EQ(gui.imgThumb.file(), "/app/office_s.bmp");
}

TEST_F(MainFormLoad, NothingMovesWhenTheGatewayNeverComes) {
    bench.programs.failStart("QuorrinGatewayTI");
    load();
    bench.take();
    bench.clock.runFor(60'000);
    EXPECT_THAT(bench.take(), ElementsAre("robotTI.WritePowerByte 63"));
    EXPECT_FALSE(values.tickEnabled);
}

TEST_F(MainFormLoad, FramesBeforeTheLoadAreNobodys) {
    bench.powerFrames(20);
    bench.sensorFrames(20);
    EXPECT_EQ(values.tiWarmupCount, 0);
    EXPECT_EQ(values.motWarmupCount, 0);
}

TEST_F(MainFormLoad, TheLoginHandsOverToTheLoad) {
    bench.station.startAtLogin();
    EXPECT_TRUE(bench.station.login.shown());
    bench.clock.runFor(100);
    bench.station.login.cmdOK.operatorClick();
    EXPECT_FALSE(bench.station.login.shown());
    EXPECT_TRUE(gui.shown());
    EXPECT_EQ(bench.clock.nowMs(), 1100);
    EXPECT_EQ(values.robotIp, "127.127.0.1");
    EXPECT_EQ(bench.log.front(), "no window Quorrin Gateway_MotionControl");
    EXPECT_EQ(bench.log.at(1), "no window Quorrin Gateway_Multimedia");
    EXPECT_EQ(bench.log.at(2), "start QuorrinGatewayTI");
}

}  // namespace
}  // namespace quorrin
