// The robot as a whole: rates, power byte, dead man, dock, truth, seeds.
#include "robot/simulated_robot.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "robot/sha256.h"
#include "robot/truth.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

std::vector<Fault> scenario(const std::string& text) {
    return parseScenario(text, "s.jsonl");
}

TEST(SimulatedRobot, SendsMotionFramesTenTimesASecondAndPowerFramesTwice) {
    RobotAtWork work(bareRoom());
    work.rangeFrames = work.motorFrames = work.powerFrames = 0;
    work.run(10000);
    EXPECT_EQ(work.rangeFrames, 100);
    EXPECT_EQ(work.motorFrames, 100);
    EXPECT_EQ(work.powerFrames, 20);
}

TEST(SimulatedRobot, IsSilentOnTheMotionSideAndStandsWithoutBit2OfThePowerByte) {
    RobotAtWork work(bareRoom());
    work.drive(-500, 500, 1000);
    work.robot.writePowerByte(63 & ~4);
    work.drive(-500, 500, 1000);
    work.rangeFrames = work.motorFrames = work.powerFrames = 0;
    work.drive(-500, 500, 1000);
    EXPECT_EQ(work.rangeFrames + work.motorFrames, 0);
    EXPECT_EQ(work.powerFrames, 2);
    EXPECT_NEAR(work.robot.body().forward_mps(), 0, 1e-6);
    EXPECT_STREQ(work.robot.drives().modeText(0), "suspended");
    work.robot.writePowerByte(63);
    work.run(500);
    EXPECT_GT(work.rangeFrames, 0);
    EXPECT_STREQ(work.robot.drives().modeText(0), "velocity");
}

TEST(SimulatedRobot, StartsWithItsMotionSideOff) {
    SimulatedRobot robot(bareRoom(), 1);
    int frames = 0;
    robot.onRanges = [&](const RangeReadings&) { ++frames; };
    robot.motionPeerCame();
    robot.advanceTo(2000);
    EXPECT_EQ(frames, 0);
    EXPECT_EQ(robot.powerByte() & 4, 0);
}

TEST(SimulatedRobot, StandsWithinHalfASecondOfItsPeersSilence) {
    RobotAtWork work(bareRoom());
    work.drive(-500, 500, 2000);
    EXPECT_GT(work.robot.body().forward_mps(), 0.15);
    work.robot.advanceTo(work.robot.nowMs() + 500);
    EXPECT_NEAR(work.robot.body().forward_mps(), 0, 0.001);
}

TEST(SimulatedRobot, StandsWithin200msOfLosingItsPeer) {
    RobotAtWork work(bareRoom());
    work.drive(-500, 500, 2000);
    work.robot.motionPeerGone();
    work.robot.advanceTo(work.robot.nowMs() + 200);
    EXPECT_NEAR(work.robot.body().forward_mps(), 0, 0.001);
}

TEST(SimulatedRobot, MovesItsServosAtFiniteSpeedAndLeavesUnnamedOnesAlone) {
    RobotAtWork work(bareRoom());
    work.robot.moveServosTimed({3900, 3500, -32768, 9000, -7, 3500}, 1000);
    work.run(500);
    EXPECT_NEAR(work.robot.servos().position(0), 3700, 5);
    work.run(600);
    EXPECT_EQ(work.robot.servos().position(0), 3900);
    EXPECT_EQ(work.robot.servos().position(2), 3500);
    EXPECT_EQ(work.robot.servos().position(3), 4900);
    EXPECT_EQ(work.robot.servos().position(4), 0);
    work.robot.moveServosTimed({0, -32768, -32768, -32768, -32768, -32768}, 1);
    work.run(300);
    EXPECT_GT(work.robot.servos().position(0), 1500) << "no servo jumps";
}

TEST(SimulatedRobot, ChargesOnADockWithBits6And7AndStopsWithoutThem) {
    RobotAtWork work(bareRoom(), 1, scenario(R"({"t": 1, "fault": "dock"})"));
    work.run(1000);
    EXPECT_GT(work.power.dcInAdc, 0);
    EXPECT_EQ(work.power.chargerStatus & 0x68, 0x08) << "the supply settles first";
    work.run(2000);
    EXPECT_EQ(work.power.chargerStatus, 0);
    const double before = work.robot.power().charge(0);
    work.robot.writePowerByte(63 | 0xC0);
    work.run(60000);
    EXPECT_EQ(work.power.chargerStatus, 3);
    EXPECT_EQ(work.power.chargerFlags, 0xC0);
    EXPECT_GT(work.robot.power().charge(0), before);
    work.robot.writePowerByte(63);
    work.run(1000);
    EXPECT_EQ(work.power.chargerStatus, 0);
}

TEST(SimulatedRobot, HasItsSitesDockUnderItWhereItStandsRight) {
    Site site = bareRoom(7, 7, {3, 0.3}, kExactPi / 2);
    site.hasDock = true;
    site.dock = {{{3, 0.3}, kExactPi / 2}, 16};
    RobotAtWork work(site, 1, scenario(R"({"t": 5, "fault": "undock"})"));
    work.run(1000);
    EXPECT_TRUE(work.robot.docked());
    EXPECT_NEAR(work.power.dcInAdc / 4095.0 * 3.3 * 8, 16, 0.1);
    work.run(5000);
    EXPECT_FALSE(work.robot.docked());
    EXPECT_EQ(work.power.dcInAdc, 0);
    work.drive(-500, 500, 3000);
    EXPECT_FALSE(work.robot.docked());
}

TEST(SimulatedRobot, ShowsVoltagesAsTheStationComputesThem) {
    RobotAtWork work(bareRoom());
    work.run(1000);
    const double ref = 6142.5 / work.power.refAdc;
    for (const int adc : work.power.batteryAdc) {
        EXPECT_GT(adc / 4095.0 * ref * 8, 11.5);
        EXPECT_LT(adc / 4095.0 * ref * 8, 12.6);
    }
    for (const int raw : work.power.temperatureAdc) EXPECT_GE(raw, 800);
}

TEST(Power, DrainsFasterUnderLoadAndNeverBelowEmpty) {
    Power idle;
    Power driving;
    for (int i = 0; i < 3600; ++i) {
        idle.step(1, 0, 0, 0x3B);
        driving.step(1, 0.5, 0, 0x3F);
    }
    EXPECT_LT(driving.charge(0), idle.charge(0));
    EXPECT_LT(idle.charge(0), 0.92);
    for (int i = 0; i < 36000; ++i) driving.step(1, 0.5, 0, 0x3F);
    EXPECT_EQ(driving.charge(0), 0);
    EXPECT_LT(driving.read(nullptr).batteryAdc[0] / 4095.0 * 3.3 * 8, 10.4);
}

TEST(Power, StopsChargingWhenFull) {
    Power power;
    power.setCharge(0, 0.999);
    for (int i = 0; i < 600; ++i) power.step(1, 0, 16, 0xFF);
    EXPECT_FALSE(power.charging(0));
    EXPECT_TRUE(power.charging(1));
    EXPECT_EQ(power.read(nullptr).chargerStatus, 2);
    EXPECT_EQ(power.read(nullptr).chargerFlags, 0x40);
}

TEST(Truth, HasEveryKeyAtTenLinesASecond) {
    RobotAtWork work(bareRoom(7, 7, {3, 3}, 1.0));
    std::vector<nlohmann::json> lines;
    work.robot.onTruth = [&] { lines.push_back(nlohmann::json::parse(truthLine(work.robot))); };
    work.robot.showLcd("picture");
    work.robot.playSound("a \"name\"\n.wav", "abc");
    work.run(1000);
    ASSERT_EQ(lines.size(), 10u);
    const nlohmann::json& line = lines.front();
    EXPECT_EQ(line.size(), 14u);
    EXPECT_DOUBLE_EQ(line["t"].get<double>(), 0.6);
    EXPECT_NEAR(line["x"].get<double>(), 3, 1e-3);
    EXPECT_NEAR(line["theta"].get<double>(), 1.0, 1e-3);
    EXPECT_EQ(line["contacts"], 0);
    EXPECT_EQ(line["servos"].size(), 6u);
    EXPECT_EQ(line["powerByte"], 63);
    EXPECT_EQ(line["lcd"], sha256Hex("picture"));
    EXPECT_EQ(line["modeLeft"], "velocity");
    EXPECT_EQ(line["modeRight"], "velocity");
    ASSERT_EQ(line["sounds"].size(), 1u);
    EXPECT_EQ(line["sounds"][0]["name"], "a \"name\"\n.wav");
    EXPECT_EQ(line["sounds"][0]["bytes"], 3);
    EXPECT_EQ(line["sounds"][0]["sha256"],
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_TRUE(lines[1]["sounds"].empty());
    for (const char* key : {"v", "w", "distance", "y"}) EXPECT_TRUE(line[key].is_number()) << key;
}

TEST(Truth, MeasuresTheWayAndKeepsThetaWithinPi) {
    RobotAtWork work(bareRoom());
    work.drive(-500, 500, 5000);
    work.drive(400, 400, 9000);
    const auto line = nlohmann::json::parse(truthLine(work.robot));
    EXPECT_NEAR(line["distance"].get<double>(), line["x"].get<double>() - 3.5, 0.02);
    EXPECT_LE(std::abs(line["theta"].get<double>()), 3.14160);
}

std::string history(std::uint64_t seed) {
    RobotAtWork work(shippedSite("clutter"), seed);
    std::string all;
    work.onMotors = [&] {
        for (const int adc : work.ranges.irAdc) all += std::to_string(adc) + " ";
        all += std::to_string(work.motors.encoder[0]) + "\n";
    };
    work.drive(-500, 450, 20000);
    return all + truthLine(work.robot);
}

TEST(SimulatedRobot, IsTheSameForTheSameSeedAndAnotherForAnother) {
    EXPECT_EQ(history(3), history(3));
    EXPECT_NE(history(3), history(4));
}

TEST(SimulatedRobot, PeopleWalkAndWaitForTheRobot) {
    Site site = bareRoom();
    site.people.push_back({{{1, 3.5}, {6, 3.5}}, 0.8, 0.5});
    RobotAtWork work(site);
    work.run(20000);
    EXPECT_EQ(work.robot.body().contacts(), 0);
    const Vec2 person = work.robot.people().positions()[0];
    EXPECT_GT(length(person - work.robot.body().pose().at), 0.8);
    EXPECT_LT(person.x, 3.5) << "it waits before the robot, which stands in its way";
}

TEST(Sha256, MatchesPublishedDigests) {
    EXPECT_EQ(sha256Hex(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(sha256Hex("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(sha256Hex(std::string(1000000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

}  // namespace
}  // namespace quorrin
