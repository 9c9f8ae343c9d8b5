// Scenarios: how they are read, and what each fault does.
#include "robot/scenario.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/robot_room.h"

namespace quorrin {
namespace {

std::vector<Fault> scenario(const std::string& text) {
    return parseScenario(text, "s.jsonl");
}

TEST(Faults, AHotBatteryReadsBelow800ForItsTime) {
    RobotAtWork work(bareRoom(), 1, scenario(R"({"t": 2, "fault": "hotBattery", "battery": 2, "for": 3})"));
    work.run(2000);
    EXPECT_LT(work.power.temperatureAdc[1], 800);
    EXPECT_GE(work.power.temperatureAdc[0], 800);
    work.run(4000);
    EXPECT_GE(work.power.temperatureAdc[1], 800);
}

TEST(Faults, ASilentLinkSaysNothingForItsTime) {
    RobotAtWork work(bareRoom(), 1,
                     scenario("{\"t\": 1, \"fault\": \"silence\", \"link\": \"mot\", \"for\": 2}\n"
                              "{\"t\": 5, \"fault\": \"silence\", \"link\": \"ti\"}"));
    work.run(600);
    work.rangeFrames = work.motorFrames = 0;
    work.run(1800);
    EXPECT_EQ(work.rangeFrames + work.motorFrames, 0);
    work.run(600);
    EXPECT_GT(work.motorFrames, 0);
    work.run(2000);
    work.powerFrames = 0;
    work.run(5000);
    EXPECT_EQ(work.powerFrames, 0);
}

TEST(Faults, ADropIsToldAndTheLinkRefusedForItsTime) {
    RobotAtWork work(bareRoom(), 1, scenario(R"({"t": 1, "fault": "drop", "link": "ti", "for": 2})"));
    std::vector<RobotLink> dropped;
    work.robot.onDrop = [&](RobotLink link) { dropped.push_back(link); };
    work.run(1000);
    EXPECT_EQ(dropped, std::vector<RobotLink>{RobotLink::ti});
    EXPECT_TRUE(work.robot.refused(RobotLink::ti));
    EXPECT_FALSE(work.robot.refused(RobotLink::mot));
    work.run(2000);
    EXPECT_FALSE(work.robot.refused(RobotLink::ti));
}

TEST(Faults, ADeadSensorReadsZero) {
    RobotAtWork work(bareRoom(), 1,
                     scenario("{\"t\": 1, \"fault\": \"deadSensor\", \"sensor\": \"irHead\"}\n"
                              "{\"t\": 1, \"fault\": \"deadSensor\", \"sensor\": \"sonar2\"}\n"
                              "{\"t\": 1, \"fault\": \"deadSensor\", \"sensor\": \"human1\"}"));
    work.run(1000);
    EXPECT_EQ(work.ranges.irAdc[kIrHead], 0);
    EXPECT_EQ(work.ranges.sonarCm[2], 0);
    EXPECT_EQ(work.ranges.humanAdc[0], 0);
    EXPECT_NE(work.ranges.humanAdc[1], 0);
    EXPECT_NE(work.ranges.sonarCm[1], 0);
}

TEST(Faults, AFrozenEncoderStandsWhileTheWheelTurnsAndGoesOnFromThere) {
    RobotAtWork work(bareRoom(), 1,
                     scenario(R"({"t": 2, "fault": "frozenEncoder", "side": "right", "for": 2})"));
    work.drive(-400, 400, 1500);
    const int before = work.motors.encoder[1];
    work.drive(-400, 400, 1500);
    EXPECT_NEAR(work.motors.encoder[1], before, 10);
    EXPECT_EQ(work.motors.speed[1], 0);
    EXPECT_GT(work.robot.body().forward_mps(), 0.1);
    work.drive(-400, 400, 1500);
    EXPECT_GT(work.motors.speed[1], 300);
}

TEST(Faults, APersonComesInFrontOfTheRobotAndGoes) {
    RobotAtWork work(bareRoom(), 1, scenario(R"({"t": 1, "fault": "person", "for": 2})"));
    work.run(1000);
    ASSERT_EQ(work.robot.people().positions().size(), 1u);
    EXPECT_NEAR(work.robot.people().positions()[0].x, 3.5 + 1.2, 0.01);
    EXPECT_GT(work.ranges.humanAdc[0], 2048 + 500);
    work.run(2000);
    EXPECT_TRUE(work.robot.people().positions().empty());
}

TEST(Scenario, NamesLineAndReasonOfAMistake) {
    const auto errorOf = [](const std::string& text) -> std::string {
        try {
            parseScenario(text, "s.jsonl");
        } catch (const SiteError& error) {
            return error.what();
        }
        return "";
    };
    using testing::HasSubstr;
    EXPECT_THAT(errorOf("# first\n\n{\"t\": 3, \"fault\": \"stallWheel\", \"sid\": \"left\"}"),
                HasSubstr("s.jsonl:3: "));
    EXPECT_THAT(errorOf(R"({"t": 3, "fault": "stallWheel", "side": "left", "fro": 3})"),
                HasSubstr("unknown key \"fro\""));
    EXPECT_THAT(errorOf(R"({"t": 3, "fault": "stal"})"), HasSubstr("unknown fault \"stal\""));
    EXPECT_THAT(errorOf(R"({"fault": "dock"})"), HasSubstr("\"t\" is missing"));
    EXPECT_THAT(errorOf(R"({"t": 1, "fault": "deadSensor", "sensor": "ir9"})"), HasSubstr("ir9"));
    EXPECT_THAT(errorOf(R"({"t": 1, "fault": "undock", "link": "mot"})"), HasSubstr("unknown key \"link\""));
    EXPECT_THAT(errorOf(R"({"t": 1, "fault": "silence", "link": "both"})"), HasSubstr("\"link\""));
    EXPECT_THAT(errorOf(R"({"t": 1, "fault": "hotBattery", "battery": 1.5})"), HasSubstr("\"battery\""));
    EXPECT_THAT(errorOf("{\"t\": 1,"), HasSubstr("s.jsonl:1: "));
}

TEST(Scenario, RunsInTheOrderOfItsTimesWhateverTheFilesOrder) {
    const auto faults = scenario("{\"t\": 9, \"fault\": \"undock\"}\n{\"t\": 2, \"fault\": \"dock\"}");
    ASSERT_EQ(faults.size(), 2u);
    EXPECT_EQ(faults[0].kind, FaultKind::dock);
}

}  // namespace
}  // namespace quorrin
