// The robot's camera behind its door: how requests become frames.
#include <gtest/gtest.h>

#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_network.h"
#include "robot/robot_server.h"
#include "support/robot_room.h"
#include "support/wire_peer.h"

namespace quorrin {
namespace {

using wire::Packet;

constexpr const char* kAddress = "127.127.0.1";

// A robot whose camera gives at most ten pictures a second, and a gateway on its multimedia link.
class PictureRequestsTest : public testing::Test {
  protected:
    void begin(CameraSetup camera) {
        camera.rate = 10;
        server = std::make_unique<RobotServer>(
            clock, net, robot, [](const std::string&) {}, std::move(camera));
        EXPECT_EQ(server->listen(kAddress, 10001), "");
        dial();
    }
    void beginWithCountedPictures() {
        CameraSetup camera;
        camera.standIn = [this] {
            ++taken;
            return CameraPicture{320, 240, std::string(3 * 320 * 240, 'p')};
        };
        begin(std::move(camera));
    }
    void dial() {
        dialled.push_back(net.connectTcp(
            kAddress, 10002, [this](auto stream, const std::string&) { ti.take(std::move(stream)); }));
        clock.runFor(40);
        ti.say(helloPacket(wire::ROLE_TI, "test ti"));
        clock.runFor(40);
        ti.takeHeard();
    }
    void request(int times = 1) {
        Packet packet;
        packet.mutable_request_image();
        for (int i = 0; i < times; ++i) ti.say(packet);
    }
    std::size_t frames() const { return ti.count(Packet::kImageFrame); }
    // The pixels without the line of the stamp.
    std::string scene() const {
        const std::string& pixels = ti.last(Packet::kImageFrame)->image_frame().pixels();
        return pixels.substr(0, pixels.size() * 9 / 10);
    }

    VirtualClock clock;
    VirtualNetwork net{clock};
    SimulatedRobot robot{bareRoom(), 1,
                         parseScenario("{\"t\": 10, \"fault\": \"silence\", \"link\": \"ti\", \"for\": 2}\n"
                                       "{\"t\": 20, \"fault\": \"person\", \"for\": 2}",
                                       "s")};
    std::unique_ptr<RobotServer> server;
    std::vector<std::unique_ptr<Connecting>> dialled;
    WirePeer ti;
    int taken = 0;
};

TEST_F(PictureRequestsTest, NothingComesUnasked) {
    begin({});
    clock.runFor(2000);
    EXPECT_EQ(frames(), 0u);
}

TEST_F(PictureRequestsTest, TheFirstOneIsAnsweredAtOnce) {
    begin({});
    request();
    clock.runFor(20);
    EXPECT_EQ(frames(), 1u);
}

TEST_F(PictureRequestsTest, EachIsAnsweredOnceAndNoFasterThanTheRate) {
    begin({});
    request(4);
    clock.runFor(50);
    EXPECT_EQ(frames(), 1u);
    clock.runFor(100);
    EXPECT_EQ(frames(), 2u);
    clock.runFor(2000);
    EXPECT_EQ(frames(), 4u);
}

TEST_F(PictureRequestsTest, AskingAgainAtEachFrameGivesTheRate) {
    begin({});
    std::size_t seen = 0;
    request();
    for (int ms = 0; ms < 5000; ++ms) {
        clock.runFor(1);
        if (frames() > seen) {
            seen = frames();
            request();
        }
    }
    EXPECT_GE(seen, 48u);
    EXPECT_LE(seen, 50u);
}

TEST_F(PictureRequestsTest, KeepsEightAtMost) {
    begin({});
    request(100);
    clock.runFor(5000);
    EXPECT_EQ(frames(), 8u);
}

TEST_F(PictureRequestsTest, ThoseOfAGatewayThatIsGoneAreForgotten) {
    begin({});
    request(5);
    clock.runFor(150);
    ti.hangUp();
    clock.runFor(100);
    ti = WirePeer();
    dial();
    clock.runFor(2000);
    EXPECT_EQ(frames(), 0u);
}

TEST_F(PictureRequestsTest, ALargePictureGoesThroughWhole) {
    CameraSetup camera;
    camera.size = {640, 480};
    begin(camera);
    request();
    clock.runFor(100);
    ASSERT_EQ(frames(), 1u);
    const Packet* packet = ti.last(Packet::kImageFrame);
    EXPECT_EQ(packetFault(*packet), "");
    EXPECT_EQ(packet->image_frame().width(), 640);
    EXPECT_EQ(packet->image_frame().pixels().size(), 921'600u);
}

TEST_F(PictureRequestsTest, PicturesDoNotPileUpBeforeASlowReader) {
    beginWithCountedPictures();
    request(5);
    clock.runFor(50);
    EXPECT_EQ(taken, 1);
    net.setHung(tcpPlace(kAddress, 10002), true);
    clock.runFor(900);
    EXPECT_EQ(taken, 2) << "the second one has not left";
    net.setHung(tcpPlace(kAddress, 10002), false);
    clock.runFor(1000);
    EXPECT_EQ(taken, 5);
    EXPECT_EQ(frames(), 5u);
}

TEST_F(PictureRequestsTest, ASilencedLinkSwallowsItsRequests) {
    begin({});
    clock.runUntil(10'500);
    request();
    clock.runUntil(13'000);
    EXPECT_EQ(frames(), 0u);
    request();
    clock.runFor(200);
    EXPECT_EQ(frames(), 1u);
}

TEST_F(PictureRequestsTest, ShowsWhatTheRobotSeesNow) {
    begin({});
    request();
    clock.runFor(200);
    const std::string empty = scene();
    clock.runUntil(19'500);
    request();
    clock.runFor(200);
    EXPECT_EQ(scene(), empty) << "nothing has moved, and the frame's number is not in the scene";
    clock.runUntil(20'500);
    request();
    clock.runFor(200);
    EXPECT_NE(scene(), empty) << "somebody stands before it";
}

TEST_F(PictureRequestsTest, NumbersItsFrames) {
    begin({});
    request();
    clock.runFor(200);
    const std::string first = ti.last(Packet::kImageFrame)->image_frame().pixels();
    CameraView view = robot.view(1);
    view.timeMs = 80;
    const Site room = bareRoom();
    EXPECT_EQ(first, RobotCamera(room).takePicture(view).pixels);
    request();
    clock.runFor(200);
    const std::string second = ti.last(Packet::kImageFrame)->image_frame().pixels();
    view.timeMs = 280;
    view.frame = 2;
    EXPECT_EQ(second, RobotCamera(room).takePicture(view).pixels);
}

TEST_F(PictureRequestsTest, WhatStandsInForTheCameraIsSentAsItIs) {
    beginWithCountedPictures();
    request();
    clock.runFor(100);
    ASSERT_EQ(frames(), 1u);
    EXPECT_EQ(ti.last(Packet::kImageFrame)->image_frame().pixels(), std::string(3 * 320 * 240, 'p'));
}

}  // namespace
}  // namespace quorrin
