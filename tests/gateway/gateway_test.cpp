#include "gateway/gateway.h"

#include "gateway/gateway_fixture.h"

namespace quorrin {
namespace {

using wire::Packet;

struct MultimediaGatewayTest : GatewayTest {
    MultimediaGatewayTest() : GatewayTest(kMultimediaGateway) {}
};

TEST_F(GatewayTest, CarriesOperationsToTheRobot) {
    bringUp();
    station.say(velocities(-120, 120));
    clock.runFor(0);
    ASSERT_EQ(robot.count(Packet::kSetDriveVelocities), 1U);
    EXPECT_EQ(robot.last(Packet::kSetDriveVelocities)->set_drive_velocities().channel1(), -120);
}

TEST_F(GatewayTest, CarriesFramesToTheStation) {
    bringUp();
    robot.say(motorFrame(-300, 300));
    clock.runFor(0);
    ASSERT_EQ(station.count(Packet::kMotorFrame), 1U);
    EXPECT_EQ(station.last(Packet::kMotorFrame)->motor_frame().encoder_position_left(), 17);
    EXPECT_EQ(station.last(Packet::kMotorFrame)->motor_frame().encoder_speed_left(), -300);
}

TEST_F(GatewayTest, NeverDeliversAWheelSpeedOfExactlyMinusOne) {
    bringUp();
    robot.say(motorFrame(-1, -1));
    clock.runFor(0);
    const Packet* frame = station.last(Packet::kMotorFrame);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->motor_frame().encoder_speed_left(), -2);
    EXPECT_EQ(frame->motor_frame().encoder_speed_right(), -2);
}

TEST_F(GatewayTest, PassesOtherWheelSpeedsAsTheyAre) {
    bringUp();
    for (const int speed : {-3, -2, 0, 1, -32768, 32767}) {
        robot.say(motorFrame(speed, speed));
        clock.runFor(0);
        EXPECT_EQ(station.last(Packet::kMotorFrame)->motor_frame().encoder_speed_left(), speed);
    }
}

TEST_F(GatewayTest, DropsOperationsWhileTheRobotIsAwayAndSendsNoneOfThemLater) {
    start();
    connectStation();
    station.say(velocities(-500, 500));
    clock.runFor(150);
    openRobot();
    clock.runFor(1000);
    ASSERT_EQ(robot.connections(), 1);
    robotSaysHello();
    clock.runFor(500);
    EXPECT_EQ(robot.count(Packet::kSetDriveVelocities), 0U);
    EXPECT_FALSE(ended);
}

TEST_F(GatewayTest, DropsOperationsBeforeTheRobotsHello) {
    openRobot();
    start();
    connectStation();
    station.say(velocities(-500, 500));
    clock.runFor(100);
    robotSaysHello();
    EXPECT_EQ(robot.count(Packet::kSetDriveVelocities), 0U);
}

TEST_F(GatewayTest, AMotionGatewayThatLosesItsStationSuspendsBothDrivesAndEnds) {
    bringUp();
    station.hangUp();
    clock.runFor(0);
    EXPECT_EQ(ended, 0);
    std::vector<int> channels;
    for (const auto& packet : robot.heard()) {
        if (packet.has_suspend_drive()) channels.push_back(packet.suspend_drive().channel());
    }
    EXPECT_EQ(channels, (std::vector<int>{0, 1}));
    EXPECT_EQ(robot.heard().back().goodbye().reason(), "the station closed the connection");
    EXPECT_FALSE(robot.connected());
    EXPECT_FALSE(window.shown);
}

TEST_F(GatewayTest, ClosesOnRequestInTheSameWay) {
    bringUp();
    gateway->close();
    clock.runFor(0);
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(robot.count(Packet::kSuspendDrive), 2U);
    EXPECT_EQ(station.heard().back().goodbye().reason(), "asked to close");
    EXPECT_FALSE(station.connected());
    EXPECT_FALSE(window.shown);
}

TEST_F(MultimediaGatewayTest, TellsARobotThatComesLateTheLastPowerByte) {
    start();
    connectStation();
    for (const int value : {63, 59}) {
        Packet packet;
        packet.mutable_write_power_byte()->set_value(value);
        station.say(packet);
    }
    clock.runFor(1000);
    openRobot();
    clock.runFor(1000);
    robotSaysHello();
    ASSERT_EQ(robot.count(Packet::kWritePowerByte), 1U);
    EXPECT_EQ(robot.last(Packet::kWritePowerByte)->write_power_byte().value(), 59);
}

TEST_F(MultimediaGatewayTest, TellsARobotNoPowerByteThatWasNeverWritten) {
    bringUp();
    runWithRobotAlive(1000);
    EXPECT_EQ(robot.count(Packet::kWritePowerByte), 0U);
}

TEST_F(MultimediaGatewayTest, EndsWithoutTouchingDrivesThatItsLinkDoesNotHave) {
    bringUp();
    station.hangUp();
    clock.runFor(0);
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(robot.count(Packet::kSuspendDrive), 0U);
}

TEST_F(GatewayTest, TriesNothingMoreOnceItHasEnded) {
    start();
    clock.runFor(0);
    gateway->close();
    const int before = network.attempts(tcpPlace("10.0.0.1", 10001));
    clock.runFor(10'000);
    EXPECT_EQ(network.attempts(tcpPlace("10.0.0.1", 10001)), before);
}

TEST_F(GatewayTest, WaitsForItsStationAsLongAsAStationProgramRuns) {
    openRobot();
    start();
    clock.runFor(60'000);
    EXPECT_FALSE(ended);
}

TEST_F(GatewayTest, EndsWhenNoStationProgramHasRunForASecondAndNoneHasConnected) {
    stationRuns = false;
    start();
    clock.runFor(999);
    EXPECT_FALSE(ended);
    clock.runFor(1);
    EXPECT_EQ(ended, 0);
    EXPECT_TRUE(logged("no station runs"));
}

TEST_F(GatewayTest, AStationProgramThatComesBackInTimeIsWaitedFor) {
    stationRuns = false;
    start();
    clock.runFor(800);
    stationRuns = true;
    clock.runFor(300);
    stationRuns = false;
    clock.runFor(800);
    EXPECT_FALSE(ended);
}

TEST_F(GatewayTest, ASecondStartExitsAtOnceWhileOneIsAlive) {
    window.answer = WindowClaim::otherAlive;
    start();
    EXPECT_EQ(ended, 0);
    EXPECT_TRUE(logged("another one is alive"));
    clock.runFor(10'000);
    EXPECT_EQ(network.attempts(tcpPlace("10.0.0.1", 10001)), 0);
}

TEST_F(GatewayTest, ASecondStartWaitsForOneThatIsClosing) {
    window.answer = WindowClaim::otherClosing;
    openRobot();
    start();
    clock.runFor(3000);
    EXPECT_FALSE(ended);
    EXPECT_EQ(robot.connections(), 0);
    window.answer = WindowClaim::taken;
    clock.runFor(50);
    EXPECT_EQ(robot.connections(), 1);
}

TEST_F(GatewayTest, GivesUpOnOneThatNeverFinishesClosing) {
    window.answer = WindowClaim::otherClosing;
    start();
    clock.runFor(11'000);
    EXPECT_EQ(ended, 1);
}

TEST_F(GatewayTest, TurnsASecondStationAwayAndKeepsTheFirst) {
    bringUp();
    WirePeer second;
    callFrom(second);
    second.say(helloPacket(wire::ROLE_MOT, "another"));
    clock.runFor(0);
    EXPECT_FALSE(second.connected());
    EXPECT_EQ(second.heard().back().goodbye().reason(), "this gateway has a station");
    station.say(velocities(1, 2));
    clock.runFor(0);
    EXPECT_EQ(robot.count(Packet::kSetDriveVelocities), 1U);
}

TEST_F(GatewayTest, DropsALocalCallerThatTalksRubbishAndGoesOn) {
    bringUp();
    WirePeer caller;
    callFrom(caller);
    caller.sayBytes("GET / HTTP/1.1\r\n\r\n");
    clock.runFor(0);
    EXPECT_FALSE(caller.connected());
    EXPECT_TRUE(logged("dropped a local caller: it sent rubbish"));
    EXPECT_FALSE(ended);
    EXPECT_TRUE(station.connected());
}

TEST_F(GatewayTest, ASilentLocalCallerDoesNotKeepTheStationOut) {
    openRobot();
    start();
    clock.runFor(0);
    robotSaysHello();
    WirePeer caller;
    callFrom(caller);
    connectStation();
    station.say(velocities(1, 2));
    clock.runFor(0);
    EXPECT_EQ(robot.count(Packet::kSetDriveVelocities), 1U);
}

TEST_F(GatewayTest, AStationThatSendsRubbishIsLost) {
    bringUp();
    station.sayBytes(std::string(8, '\xFF'));
    clock.runFor(0);
    EXPECT_EQ(ended, 0);
    EXPECT_EQ(robot.count(Packet::kSuspendDrive), 2U);
}

TEST_F(GatewayTest, AStationThatSendsAFrameIsLost) {
    bringUp();
    station.say(motorFrame(1, 1));
    clock.runFor(0);
    EXPECT_EQ(ended, 0);
    EXPECT_TRUE(logged("the station sent a frame"));
}

TEST_F(MultimediaGatewayTest, DropsFramesThatAHungStationDoesNotTakeAndSaysSoOnce) {
    bringUp();
    network.setHung(localPlace("ticom"), true);
    Packet picture;
    picture.mutable_image_frame()->set_width(1000);
    picture.mutable_image_frame()->set_height(1000);
    picture.mutable_image_frame()->set_pixels(std::string(3'000'000, 'p'));
    for (int i = 0; i < 8; ++i) {
        robot.say(picture);
        clock.runFor(10);
    }
    EXPECT_EQ(std::count(log.begin(), log.end(), "the station does not take its frames; they are dropped"),
              1);
    EXPECT_FALSE(ended);
    network.setHung(localPlace("ticom"), false);
    clock.runFor(0);
    EXPECT_EQ(station.count(Packet::kImageFrame), 5U);
}

TEST_F(GatewayTest, AHungStationCostsTheRobotNoHeartbeat) {
    bringUp();
    network.setHung(localPlace("motcom"), true);
    runWithRobotAlive(5000);
    EXPECT_GE(robot.count(Packet::kHeartbeat), 49U);
}

}  // namespace
}  // namespace quorrin
