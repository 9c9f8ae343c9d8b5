// One gateway in virtual time between a robot and a station that a test plays.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "gateway/gateway.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_network.h"
#include "support/wire_peer.h"

namespace quorrin {

class FakeWindow : public Window {
  public:
    WindowClaim answer = WindowClaim::taken;
    bool shown = false;
    int claims = 0;
    WindowClaim claim() override {
        ++claims;
        shown = answer == WindowClaim::taken;
        return answer;
    }
    void hide() override { shown = false; }
};

class GatewayTest : public ::testing::Test {
  protected:
    explicit GatewayTest(const GatewayKind& gatewayKind = kMotionGateway) : kind(gatewayKind) {
        writeProfile("10.0.0.1", "10001");
    }

    void writeProfile(const std::string& address, const std::string& port) {
        files.put("/ini/" + kind.profile, "[WiFi]\nWiFiIP=" + address + "\nWiFiPort=" + port + "\n");
    }
    void openRobot() {
        robotListener = network.listenTcp("10.0.0.1", 10001, nullptr);
        robotListener->onConnection = [this](auto stream) { robot.take(std::move(stream)); };
    }
    void start() {
        gateway.emplace(GatewayPorts{clock, network, files, window, "/ini", [this] { return stationRuns; },
                                     [this](const std::string& line) { log.push_back(line); },
                                     [this](int status) { ended = status; }},
                        kind);
        gateway->start();
    }
    void callFrom(WirePeer& caller) {
        calls.push_back(network.connectLocal(
            kind.endpoint, [&caller](auto stream, const std::string&) { caller.take(std::move(stream)); }));
        clock.runFor(0);
        ASSERT_TRUE(caller.connected());
    }
    void connectStation() {
        callFrom(station);
        station.say(helloPacket(kind.role, "test station"));
        clock.runFor(0);
    }
    void robotSaysHello() {
        robot.say(helloPacket(kind.role, "test robot"));
        clock.runFor(0);
    }
    // Robot and station are there, all hellos are said.
    void bringUp() {
        openRobot();
        start();
        clock.runFor(0);
        robotSaysHello();
        connectStation();
        robot.takeHeard();
        station.takeHeard();
    }
    // Time passes while the robot keeps talking.
    void runWithRobotAlive(std::int64_t ms) {
        wire::Packet beat;
        beat.mutable_heartbeat();
        for (std::int64_t passed = 0; passed < ms; passed += 100) {
            if (robot.connected()) robot.say(beat);
            clock.runFor(100);
        }
    }
    bool logged(const std::string& part) const {
        return std::any_of(log.begin(), log.end(),
                           [&](const auto& line) { return line.find(part) != std::string::npos; });
    }

    GatewayKind kind;
    VirtualClock clock;
    VirtualNetwork network{clock};
    MemoryFiles files;
    FakeWindow window;
    bool stationRuns = true;
    std::vector<std::string> log;
    std::optional<int> ended;
    std::unique_ptr<Listener> robotListener;
    WirePeer robot;
    WirePeer station;
    std::vector<std::unique_ptr<Connecting>> calls;
    std::optional<Gateway> gateway;
};

inline wire::Packet velocities(int left, int right) {
    wire::Packet packet;
    packet.mutable_set_drive_velocities()->set_channel1(left);
    packet.mutable_set_drive_velocities()->set_channel2(right);
    return packet;
}

inline wire::Packet motorFrame(int leftSpeed, int rightSpeed) {
    wire::Packet packet;
    packet.mutable_motor_frame()->set_encoder_position_left(17);
    packet.mutable_motor_frame()->set_encoder_speed_left(leftSpeed);
    packet.mutable_motor_frame()->set_encoder_speed_right(rightSpeed);
    return packet;
}

}  // namespace quorrin
