// The gateway's connection to the robot: retries, deadlines, heartbeats, bad peers.
#include "gateway/robot_side.h"

#include "gateway/gateway_fixture.h"

namespace quorrin {
namespace {

using wire::Packet;

struct RobotSideTest : GatewayTest {
    const std::string place = tcpPlace("10.0.0.1", 10001);

    void expectDropped(const std::string& line) {
        clock.runFor(0);
        EXPECT_FALSE(robot.connected());
        EXPECT_TRUE(logged("dropped the robot at 10.0.0.1 port 10001: it " + line)) << log.back();
        EXPECT_FALSE(ended);
        EXPECT_TRUE(station.connected());
        // It comes back, and all is well.
        clock.runFor(2000);
        EXPECT_TRUE(robot.connected());
        robotSaysHello();
        robot.say(motorFrame(4, 4));
        clock.runFor(0);
        EXPECT_EQ(station.count(Packet::kMotorFrame), 1U);
    }
};

TEST_F(RobotSideTest, GoesOnTryingWithAPauseThatGrowsUpToTwoSeconds) {
    start();
    std::vector<std::int64_t> times;
    int before = 0;
    for (int ms = 0; ms < 12'000; ++ms) {
        clock.runUntil(ms);
        if (network.attempts(place) != before) times.push_back(ms);
        before = network.attempts(place);
    }
    EXPECT_EQ(times, (std::vector<std::int64_t>{0, 100, 300, 700, 1500, 3100, 5100, 7100, 9100, 11100}));
}

TEST_F(RobotSideTest, SaysOnceThatTheRobotCannotBeReached) {
    start();
    clock.runFor(20'000);
    EXPECT_EQ(std::count(log.begin(), log.end(),
                         "cannot reach the robot at 10.0.0.1 port 10001: connection refused; trying again"),
              1);
}

TEST_F(RobotSideTest, GivesAnAddressThatNeverAnswersThreeSeconds) {
    network.setUnreachable(place, true);
    start();
    clock.runFor(2999);
    EXPECT_FALSE(logged("no answer"));
    clock.runFor(1);
    EXPECT_TRUE(logged("no answer from 10.0.0.1 port 10001 within 3 s"));
    clock.runFor(100);
    EXPECT_EQ(network.attempts(place), 2);
}

TEST_F(RobotSideTest, SaysHelloFirstAndThenBeatsTenTimesASecond) {
    openRobot();
    start();
    clock.runFor(0);
    ASSERT_EQ(robot.heard().size(), 1U);
    EXPECT_EQ(robot.heard().front().hello().magic(), "quorrin");
    EXPECT_EQ(robot.heard().front().hello().version(), 1);
    EXPECT_EQ(robot.heard().front().hello().role(), wire::ROLE_MOT);
    EXPECT_EQ(robot.heard().front().hello().name(), "QuorrinGatewaymot");
    robotSaysHello();
    clock.runFor(1000);
    EXPECT_EQ(robot.count(Packet::kHeartbeat), 10U);
}

TEST_F(RobotSideTest, DropsARobotThatAnswersAndThenSaysNothing) {
    bringUp();
    clock.runFor(1999);
    EXPECT_TRUE(robot.connected());
    clock.runFor(100);
    EXPECT_FALSE(robot.connected());
    EXPECT_TRUE(logged("it was silent for 2 s"));
    EXPECT_FALSE(ended);
}

TEST_F(RobotSideTest, KeepsARobotWhoseBytesComeSlowly) {
    bringUp();
    Packet frame;
    frame.mutable_ir_frame()->set_ir_adc_1(1000);
    const std::string bytes = encodePacket(frame);
    for (const char byte : bytes) {
        clock.runFor(1900);
        robot.sayBytes(std::string(1, byte));
    }
    clock.runFor(0);
    EXPECT_EQ(station.count(Packet::kIrFrame), 1U);
}

TEST_F(RobotSideTest, DropsARobotThatAcceptsAndSendsNoHello) {
    openRobot();
    start();
    connectStation();
    clock.runFor(1999);
    EXPECT_TRUE(robot.connected());
    clock.runFor(1);
    EXPECT_TRUE(logged("it sent no Hello within 2 s"));
    EXPECT_FALSE(ended);
}

TEST_F(RobotSideTest, DropsARobotThatSendsRubbish) {
    bringUp();
    robot.sayBytes(std::string("\0\0\0\3\xFF\xFF\xFF", 7));
    expectDropped("sent rubbish: packet of 3 bytes that does not parse");
}

TEST_F(RobotSideTest, DropsARobotThatSendsAnOversizedPacket) {
    bringUp();
    robot.sayBytes(std::string("\x7F\0\0\0", 4));
    expectDropped("sent rubbish: packet of 2130706432 bytes, above the limit");
}

TEST_F(RobotSideTest, DropsARobotThatClosesInTheMiddleOfAPacket) {
    bringUp();
    robot.sayBytes(std::string("\0\0\0\x10\x12", 5));
    robot.hangUp();
    expectDropped("closed in the middle of a packet");
}

TEST_F(RobotSideTest, DropsARobotOfAnotherVersion) {
    bringUp();
    robot.hangUp();
    clock.runFor(2000);
    ASSERT_TRUE(robot.connected());
    Packet hello = helloPacket(wire::ROLE_MOT, "of tomorrow");
    hello.mutable_hello()->set_version(2);
    robot.say(hello);
    expectDropped("sent protocol version 2, but this program speaks version 1");
}

TEST_F(RobotSideTest, DropsARobotThatAnswersForTheOtherLink) {
    bringUp();
    robot.hangUp();
    clock.runFor(2000);
    robot.say(helloPacket(wire::ROLE_TI, "robot"));
    expectDropped("sent a Hello for the ti link, but this is the mot link");
}

TEST_F(RobotSideTest, DropsARobotThatSendsAFrameOfTheOtherLink) {
    bringUp();
    Packet packet;
    packet.mutable_power_frame()->set_battery1_adc(1);
    robot.say(packet);
    expectDropped("sent a packet of the ti link");
}

TEST_F(RobotSideTest, DropsARobotWhoseValuesDoNotFit16Bits) {
    bringUp();
    robot.say(motorFrame(32768, 0));
    expectDropped("sent a packet with a value out of its range");
}

TEST_F(RobotSideTest, DropsARobotThatSendsAnOperation) {
    bringUp();
    robot.say(velocities(1, 2));
    expectDropped("sent an operation");
}

TEST_F(RobotSideTest, TellsTheRobotsOwnReasonForAGoodbye) {
    bringUp();
    Packet goodbye;
    goodbye.mutable_goodbye()->set_reason("another gateway\nis here");
    robot.say(goodbye);
    expectDropped("said goodbye: another gateway?is here");
}

TEST_F(RobotSideTest, ConnectsAnewSoonAfterAConnectionThatLasted) {
    bringUp();
    runWithRobotAlive(3000);
    robot.hangUp();
    clock.runFor(100);
    EXPECT_EQ(robot.connections(), 2);
}

TEST_F(RobotSideTest, AConnectionThatBreaksAtOnceDoesNotShortenThePause) {
    openRobot();
    start();
    for (int i = 0; i < 200; ++i) {
        clock.runFor(50);
        if (!robot.connected()) continue;
        robotSaysHello();
        robot.hangUp();
    }
    EXPECT_LE(robot.connections(), 10);
}

TEST_F(RobotSideTest, AProfileThatSaysNoAddressIsNamedAndReadAnew) {
    files.put("/ini/gateway_mot.ini", "[WiFi]\nBTAddress=0\n");
    openRobot();
    start();
    clock.runFor(5000);
    EXPECT_TRUE(logged("no WiFiIP in /ini/gateway_mot.ini; trying again"));
    EXPECT_FALSE(ended);
    writeProfile("10.0.0.1", "10001");
    clock.runFor(2000);
    EXPECT_EQ(robot.connections(), 1);
}

TEST(RobotAddress, NamesWhatIsWrongWithTheFile) {
    MemoryFiles files;
    EXPECT_EQ(readRobotAddress(files, "/a.ini").fault, "there is no /a.ini");
    files.put("/a.ini", "[WiFi]\nWiFiIP=1.2.3.4\n");
    EXPECT_EQ(readRobotAddress(files, "/a.ini").fault, "no WiFiPort in /a.ini");
    for (const std::string port : {"0", "70000", "-1", "ten", "99999999999999999999"}) {
        files.put("/a.ini", "[WiFi]\nWiFiIP=1.2.3.4\nWiFiPort=" + port + "\n");
        EXPECT_EQ(readRobotAddress(files, "/a.ini").fault,
                  "WiFiPort is \"" + port + "\" in /a.ini, but a port is 1 to 65535");
    }
}

TEST(RobotAddress, ReadsAddressAndPort) {
    MemoryFiles files;
    files.put("/a.ini", "[wifi]\r\nWIFIIP = \"1.2.3.4\"\r\nwifiport=65535\r\n");
    const RobotAddress robot = readRobotAddress(files, "/a.ini");
    EXPECT_EQ(robot.fault, "");
    EXPECT_EQ(robot.address, "1.2.3.4");
    EXPECT_EQ(robot.port, 65535);
}

}  // namespace
}  // namespace quorrin
