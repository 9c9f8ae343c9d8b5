#include "robot/robot_server.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_network.h"
#include "robot/sha256.h"
#include "support/robot_room.h"
#include "support/wire_peer.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::HasSubstr;
using wire::Packet;

constexpr const char* kAddress = "127.127.0.1";

class RobotServerTest : public testing::Test {
  protected:
    RobotServerTest() { EXPECT_EQ(server.listen(kAddress, 10001), ""); }

    // Somebody at the door, greeted or not.
    void dial(WirePeer& peer, int port) {
        dialled.push_back(net.connectTcp(
            kAddress, port, [&peer](auto stream, const std::string&) { peer.take(std::move(stream)); }));
        clock.runFor(40);
    }
    void bringUp() {
        dial(mot, 10001);
        mot.say(helloPacket(wire::ROLE_MOT, "test mot"));
        dial(ti, 10002);
        ti.say(helloPacket(wire::ROLE_TI, "test ti"));
        clock.runFor(40);
        power(63);
        run(500);
    }
    void power(int value) {
        Packet packet;
        packet.mutable_write_power_byte()->set_value(value);
        ti.say(packet);
    }
    void velocities(WirePeer& peer, int left, int right) {
        Packet packet;
        auto& it = *packet.mutable_set_drive_velocities();
        it.set_channel1(left);
        it.set_channel2(right);
        it.set_channel3(-32768);
        peer.say(packet);
    }
    static Packet heartbeat() {
        Packet packet;
        packet.mutable_heartbeat();
        return packet;
    }
    // Both gateways beat.
    void run(int ms) {
        for (int done = 0; done < ms; done += 100) {
            mot.say(heartbeat());
            ti.say(heartbeat());
            clock.runFor(100);
        }
    }

    VirtualClock clock;
    VirtualNetwork net{clock};
    SimulatedRobot robot{bareRoom(), 1,
                         parseScenario("{\"t\": 100, \"fault\": \"drop\", \"link\": \"mot\", \"for\": 2}\n"
                                       "{\"t\": 200, \"fault\": \"silence\", \"link\": \"ti\", \"for\": 5}",
                                       "s")};
    std::vector<std::string> log;
    RobotServer server{clock, net, robot, [this](const std::string& line) { log.push_back(line); }};
    std::vector<std::unique_ptr<Connecting>> dialled;
    WirePeer mot;
    WirePeer ti;
};

TEST_F(RobotServerTest, SaysHelloAtOnceAndThenHeartbeats) {
    dial(mot, 10001);
    ASSERT_NE(mot.last(Packet::kHello), nullptr);
    EXPECT_EQ(mot.last(Packet::kHello)->hello().role(), wire::ROLE_MOT);
    mot.say(helloPacket(wire::ROLE_MOT, "test"));
    clock.runFor(1000);
    EXPECT_GE(mot.count(Packet::kHeartbeat), 9u);
    EXPECT_THAT(log, Contains("mot: test connected"));
}

TEST_F(RobotServerTest, SendsItsFramesToThoseWhoHaveGreeted) {
    bringUp();
    mot.takeHeard();
    ti.takeHeard();
    run(2000);
    EXPECT_EQ(mot.count(Packet::kSensorFrame), 20u);
    EXPECT_EQ(mot.count(Packet::kIrFrame), 20u);
    EXPECT_EQ(mot.count(Packet::kMotorFrame), 20u);
    EXPECT_EQ(ti.count(Packet::kPowerFrame), 4u);
    for (const Packet& packet : mot.heard()) EXPECT_EQ(packetFault(packet), "");
    EXPECT_GT(ti.last(Packet::kPowerFrame)->power_frame().battery1_adc(), 1000);
}

TEST_F(RobotServerTest, DrivesAsItIsTold) {
    bringUp();
    for (int i = 0; i < 20; ++i) {
        velocities(mot, -500, 500);
        run(100);
    }
    EXPECT_GT(robot.body().forward_mps(), 0.15);
    EXPECT_LT(mot.last(Packet::kMotorFrame)->motor_frame().encoder_speed_left(), -400);
    Packet suspend;
    suspend.mutable_suspend_drive()->set_channel(0);
    mot.say(suspend);
    suspend.mutable_suspend_drive()->set_channel(1);
    mot.say(suspend);
    run(200);
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001);
}

TEST_F(RobotServerTest, StandsWithinHalfASecondWhenTheMotionGatewayFallsSilent) {
    bringUp();
    velocities(mot, -500, 500);
    run(1000);
    EXPECT_GT(robot.body().forward_mps(), 0.15);
    clock.runFor(500);
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001);
}

TEST_F(RobotServerTest, StandsAtOnceWhenTheMotionGatewayIsGone) {
    bringUp();
    velocities(mot, -500, 500);
    run(1000);
    mot.hangUp();
    clock.runFor(200);
    EXPECT_NEAR(robot.body().forward_mps(), 0, 0.001);
}

TEST_F(RobotServerTest, DoesNotTakeItsOwnDelayForTheGatewaysSilence) {
    bringUp();
    velocities(mot, -500, 500);
    run(1000);
    clock.block(800);
    run(100);
    EXPECT_GT(robot.body().forward_mps(), 0.15);
    EXPECT_NEAR(static_cast<double>(robot.nowMs()), static_cast<double>(clock.nowMs()), 20);
}

TEST_F(RobotServerTest, TurnsASecondGatewayAwayWhileTheFirstIsAlive) {
    bringUp();
    WirePeer second;
    dial(second, 10001);
    second.say(helloPacket(wire::ROLE_MOT, "second"));
    run(300);
    ASSERT_NE(second.last(Packet::kGoodbye), nullptr);
    EXPECT_FALSE(second.connected());
    EXPECT_TRUE(mot.connected());
}

TEST_F(RobotServerTest, LetsANewGatewayReplaceASilentOne) {
    bringUp();
    for (int i = 0; i < 15; ++i) {
        ti.say(heartbeat());
        clock.runFor(100);
    }
    WirePeer second;
    dial(second, 10001);
    second.say(helloPacket(wire::ROLE_MOT, "second"));
    clock.runFor(500);
    EXPECT_GT(second.count(Packet::kSensorFrame), 2u);
    EXPECT_FALSE(mot.connected());
}

TEST_F(RobotServerTest, DropsRubbishWithALineAndGoesOnWithTheOthers) {
    bringUp();
    WirePeer stranger;
    dial(stranger, 10001);
    stranger.sayBytes("GET / HTTP/1.1\r\n\r\n");
    run(300);
    EXPECT_FALSE(stranger.connected());
    EXPECT_THAT(log, Contains(HasSubstr("mot: dropped a stranger: it ")));
    mot.takeHeard();
    run(1000);
    EXPECT_EQ(mot.count(Packet::kSensorFrame), 10u);
}

TEST_F(RobotServerTest, DropsWhoSaysNothing) {
    WirePeer stranger;
    dial(stranger, 10002);
    clock.runFor(2500);
    EXPECT_FALSE(stranger.connected());
    EXPECT_THAT(log, Contains("ti: dropped a stranger: it said no Hello within 2 s"));
}

TEST_F(RobotServerTest, DropsWhoSpeaksForTheOtherLink) {
    bringUp();
    velocities(ti, -500, 500);
    run(100);
    EXPECT_FALSE(ti.connected());
    EXPECT_TRUE(mot.connected());
}

TEST_F(RobotServerTest, MovesServosShowsPicturesAndPlaysSounds) {
    bringUp();
    Packet servos;
    servos.mutable_move_servos_timed()->set_channel1(3900);
    servos.mutable_move_servos_timed()->set_channel2(-32768);
    servos.mutable_move_servos_timed()->set_duration_ms(300);
    mot.say(servos);
    Packet lcd;
    lcd.mutable_show_lcd_bitmap()->set_data("face");
    mot.say(lcd);
    Packet sound;
    sound.mutable_play_sound()->set_name("ring.wav");
    sound.mutable_play_sound()->set_data("sound");
    ti.say(sound);
    run(600);
    EXPECT_EQ(robot.servos().position(0), 3900);
    EXPECT_EQ(robot.servos().position(1), 3500);
    EXPECT_EQ(robot.lcdSha256(), sha256Hex("face"));
    const auto played = robot.takeSounds();
    ASSERT_EQ(played.size(), 1u);
    EXPECT_EQ(played[0].name, "ring.wav");
    EXPECT_EQ(played[0].bytes, 5u);
}

TEST_F(RobotServerTest, AnswersEachRequestForAPictureOnce) {
    bringUp();
    Packet request;
    request.mutable_request_image();
    ti.say(request);
    run(500);
    EXPECT_EQ(ti.count(Packet::kImageFrame), 1u);
    EXPECT_EQ(packetFault(*ti.last(Packet::kImageFrame)), "");
}

TEST_F(RobotServerTest, SendsSoundBetweenStartAndStop) {
    bringUp();
    Packet start;
    start.mutable_start_sound_capture()->set_mode(1);
    ti.say(start);
    run(1100);
    EXPECT_NEAR(static_cast<double>(ti.count(Packet::kSoundFrame)), 10, 1);
    EXPECT_EQ(ti.last(Packet::kSoundFrame)->sound_frame().data().size(), 1600u);
    Packet stop;
    stop.mutable_stop_sound_capture();
    ti.say(stop);
    run(200);
    ti.takeHeard();
    run(1000);
    EXPECT_EQ(ti.count(Packet::kSoundFrame), 0u);
}

TEST_F(RobotServerTest, BreaksAndRefusesALinkAsItsScenarioSays) {
    bringUp();
    clock.runUntil(99900);
    mot = WirePeer();
    dial(mot, 10001);
    mot.say(helloPacket(wire::ROLE_MOT, "again"));
    clock.runUntil(100100);
    EXPECT_FALSE(mot.connected());
    WirePeer early;
    dial(early, 10001);
    clock.runFor(100);
    EXPECT_FALSE(early.connected());
    clock.runUntil(102200);
    WirePeer late;
    dial(late, 10001);
    EXPECT_TRUE(late.connected());
}

TEST_F(RobotServerTest, ASilentLinkStillBeats) {
    bringUp();
    clock.runUntil(200000);
    ti = WirePeer();
    dial(ti, 10002);
    ti.say(helloPacket(wire::ROLE_TI, "again"));
    run(3000);
    EXPECT_EQ(ti.count(Packet::kPowerFrame), 0u);
    EXPECT_GT(ti.count(Packet::kHeartbeat), 20u);
    run(3000);
    EXPECT_GT(ti.count(Packet::kPowerFrame), 0u);
}

TEST_F(RobotServerTest, SaysGoodbyeWhenItEnds) {
    bringUp();
    server.close("switched off");
    clock.runFor(100);
    ASSERT_NE(mot.last(Packet::kGoodbye), nullptr);
    ASSERT_NE(ti.last(Packet::kGoodbye), nullptr);
}

TEST_F(RobotServerTest, SaysWhyItCannotListen) {
    SimulatedRobot other(bareRoom(), 1);
    RobotServer second(clock, net, other, [](const std::string&) {});
    EXPECT_THAT(second.listen(kAddress, 10001), HasSubstr("cannot listen on 127.127.0.1 port 10001"));
}

}  // namespace
}  // namespace quorrin
