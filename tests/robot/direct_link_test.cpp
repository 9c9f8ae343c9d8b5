#include "robot/direct_link.h"

#include <gtest/gtest.h>

#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"
#include "robot/sha256.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

constexpr Integer kNo = kNotCommanded;

class DirectLinkTest : public testing::Test {
  protected:
    DirectLinkTest() {
        myRobot.SensorFrame.handler = [this] { ++sensorFrames; };
        myRobot.IrFrame.handler = [this] { ++irFrames; };
        myRobot.MotorFrame.handler = [this] { ++motorFrames; };
        robotTI.PowerFrame.handler = [this] { ++powerFrames; };
        programs.onStart = [this](const std::string& name) { link.programStarted(name); };
        programs.onClose = [this](const std::string& title, bool) { link.windowClosed(title); };
    }
    void bringUp() {
        programs.start("/opt/QuorrinGatewayTI.exe");
        programs.start("/opt/QuorrinGatewaymot.exe");
        clock.runFor(500);
        robotTI.WritePowerByte(63);
        clock.runFor(1000);
    }
    void forward() { myRobot.SetDriveVelocities({-500, 500, kNo, kNo, kNo, kNo}); }

    VirtualClock clock;
    MemoryFiles files;
    ScriptedPrograms programs;
    SimulatedRobot robot{bareRoom(), 3};
    DirectLink link{clock, robot, files};
    QuorrinSDK& myRobot = link.myRobot();
    QuorrinSDK& robotTI = link.robotTI();
    int sensorFrames = 0;
    int irFrames = 0;
    int motorFrames = 0;
    int powerFrames = 0;
};

TEST_F(DirectLinkTest, DeliversNothingWithoutGateways) {
    robotTI.WritePowerByte(63);
    clock.runFor(5000);
    EXPECT_EQ(sensorFrames + irFrames + motorFrames + powerFrames, 0);
    EXPECT_EQ(robot.powerByte() & 4, 0) << "operations towards an absent gateway are dropped";
}

TEST_F(DirectLinkTest, DeliversPowerFramesWithTheMultimediaGatewayOnly) {
    programs.start("/opt/QuorrinGatewayTI.exe");
    clock.runFor(5000);
    EXPECT_GE(powerFrames, 9);
    EXPECT_EQ(sensorFrames, 0);
    EXPECT_GT(robotTI.Battery1Adc, 0);
}

TEST_F(DirectLinkTest, DeliversTheMotionFramesOnceGatewayAndPowerAreThere) {
    bringUp();
    sensorFrames = irFrames = motorFrames = 0;
    clock.runFor(1000);
    EXPECT_EQ(sensorFrames, 10);
    EXPECT_EQ(irFrames, 10);
    EXPECT_EQ(motorFrames, 10);
    EXPECT_EQ(myRobot.SonarCm(3), 300) << "nothing within 3 m";
    EXPECT_GT(myRobot.IrAdc6, 0);
}

TEST_F(DirectLinkTest, DrivesWhileItsGatewayLivesAndStandsWhenItIsClosed) {
    bringUp();
    for (int i = 0; i < 20; ++i) {
        forward();
        clock.runFor(100);
    }
    EXPECT_GT(robot.body().forward_mps(), 0.15);
    EXPECT_LT(myRobot.EncoderSpeedLeft, -400);
    EXPECT_GT(myRobot.EncoderSpeedRight, 400);
    programs.postClose(programs.findWindow("Quorrin Gateway_MotionControl"));
    clock.runFor(200);
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001);
    sensorFrames = 0;
    forward();
    clock.runFor(1000);
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001);
    EXPECT_EQ(sensorFrames, 0);
}

TEST_F(DirectLinkTest, AGatewayKeepsTheRobotGoingWhileTheStationBlocksAndTheFramesWait) {
    bringUp();
    forward();
    sensorFrames = 0;
    clock.block(1500);
    myRobot.MoveServosTimed({3600, kNo, kNo, kNo, kNo, kNo}, 300);
    EXPECT_GT(robot.body().forward_mps(), 0.15) << "less than the 2 s of a velocity command";
    EXPECT_EQ(sensorFrames, 0);
    clock.runFor(1);
    EXPECT_EQ(sensorFrames, 15);
    clock.block(2500);
    clock.runFor(1);
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001) << "the command has run out";
}

TEST_F(DirectLinkTest, CommandsCountFromTheMomentAtWhichTheyAreGiven) {
    bringUp();
    clock.runFor(50);
    const std::int64_t before = robot.nowMs();
    forward();
    EXPECT_GE(robot.nowMs(), before + 40);
}

TEST_F(DirectLinkTest, AStationThatReconnectsFindsVelocityMode) {
    bringUp();
    myRobot.SetDriveControlMode(0, 1);
    myRobot.SetDriveControlMode(1, 1);
    EXPECT_STREQ(robot.drives().modeText(0), "position");
    programs.postClose(programs.findWindow("Quorrin Gateway_MotionControl"));
    programs.start("QuorrinGatewaymot");
    clock.runFor(1000);
    EXPECT_STREQ(robot.drives().modeText(0), "velocity");
}

TEST_F(DirectLinkTest, ShowsAndPlaysTheFilesThatTheStationNames) {
    files.put("/app/quorrin128.bmp", "face");
    files.put("/app/ring.wav", "sound");
    bringUp();
    myRobot.ShowLcdBitmap("/app/quorrin128.bmp");
    robotTI.PlaySoundFile("/app/ring.wav");
    robotTI.PlaySoundFile("/app/ring.wavEOF");
    robotTI.PlaySoundFile("/app/missing.wav");
    EXPECT_EQ(robot.lcdSha256(), sha256Hex("face"));
    const auto sounds = robot.takeSounds();
    ASSERT_EQ(sounds.size(), 2u);
    EXPECT_EQ(sounds[1].name, "ring.wav");
}

TEST_F(DirectLinkTest, AnswersARequestedPictureAndSavesItAsABitmap) {
    int pictures = 0;
    robotTI.ImageFrame.handler = [&] { ++pictures; };
    bringUp();
    files.createFolder("/app");
    robotTI.SaveFrameToFile("/app/shot.bmp");
    EXPECT_FALSE(files.fileExists("/app/shot.bmp")) << "no frame has come yet";
    robotTI.RequestImage();
    clock.runFor(200);
    EXPECT_EQ(pictures, 1);
    robotTI.SaveFrameToFile("/app/shot.bmp");
    EXPECT_EQ(files.read("/app/shot.bmp").value_or("").size(), 54u + 320 * 240 * 3);
}

TEST_F(DirectLinkTest, SavesTheMomentOfTheLastFrameHoweverLateItIsAskedFor) {
    bringUp();
    files.createFolder("/app");
    robotTI.RequestImage();
    clock.runFor(200);
    robotTI.SaveFrameToFile("/app/early.bmp");
    clock.runFor(5000);
    robotTI.SaveFrameToFile("/app/late.bmp");
    EXPECT_EQ(files.read("/app/late.bmp"), files.read("/app/early.bmp"));
    robotTI.RequestImage();
    clock.runFor(200);
    robotTI.SaveFrameToFile("/app/next.bmp");
    EXPECT_NE(files.read("/app/next.bmp"), files.read("/app/early.bmp")) << "another time and number";
}

TEST_F(DirectLinkTest, SendsMicrophoneBuffersBetweenStartAndStop) {
    int buffers = 0;
    robotTI.SoundFrame.handler = [&] { ++buffers; };
    bringUp();
    robotTI.StartSoundCapture(1);
    clock.runFor(1000);
    EXPECT_EQ(buffers, 10);
    EXPECT_EQ(robotTI.SoundBufferLength, 1600);
    robotTI.StopSoundCapture();
    clock.runFor(1000);
    EXPECT_EQ(buffers, 10);
}

TEST(DirectLinkFaults, ADroppedLinkStopsTheWheelsAndComesBackByItself) {
    VirtualClock clock;
    MemoryFiles files;
    SimulatedRobot robot(bareRoom(), 3,
                         parseScenario(R"({"t": 4, "fault": "drop", "link": "mot", "for": 1})", "s"));
    DirectLink link(clock, robot, files);
    link.gatewayStarted(RobotLink::mot);
    link.gatewayStarted(RobotLink::ti);
    clock.runFor(500);
    link.robotTI().WritePowerByte(63);
    for (int i = 0; i < 34; ++i) {
        link.myRobot().SetDriveVelocities({-500, 500, kNo, kNo, kNo, kNo});
        clock.runFor(100);
    }
    EXPECT_GT(robot.body().forward_mps(), 0.15);
    clock.runUntil(4300);
    EXPECT_FALSE(link.connected(RobotLink::mot));
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001);
    clock.runUntil(5400);
    EXPECT_TRUE(link.connected(RobotLink::mot));
}

}  // namespace
}  // namespace quorrin
