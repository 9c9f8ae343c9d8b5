#include "robot/range_sensors.h"

#include <gtest/gtest.h>

#include "navigation/math/ir_range.h"
#include "robot/body.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

RangeReadings readAt(const Site& site, const Pose& pose, const std::vector<Vec2>& people = {}) {
    RangeSensors sensors(fixedSegments(site));
    return sensors.read(pose, {}, people, nullptr);
}

TEST(IrReading, GivesItsDistanceBackThroughTheStationsConversion) {
    for (double metres = 0.10; metres < 0.80; metres += 0.01)
        EXPECT_NEAR(irRangeFromAdc(irAdcFromRange(metres)), metres, 0.003) << metres;
}

TEST(IrReading, ReadsAsTheNearEndBelowTenCentimetres) {
    for (const double metres : {0.0, 0.03, 0.06, 0.09})
        EXPECT_DOUBLE_EQ(irRangeFromAdc(irAdcFromRange(metres)), 0.09);
}

TEST(IrReading, ReadsAsTheFarEndBeyondEightyCentimetres) {
    for (const double metres : {0.82, 1.0, 4.0, 1000.0})
        EXPECT_DOUBLE_EQ(irRangeFromAdc(irAdcFromRange(metres)), 0.81);
}

TEST(RangeSensors, MeasureFromWhereTheySit) {
    // 0.5 m in front of a wall on the right-hand side of the room
    RangeSensors sensors(fixedSegments(bareRoom()));
    const RangeReadings r = sensors.read({{6.5, 3.5}, 0}, {}, {}, nullptr);
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[kIrHead]), 0.5, 0.004);
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[kIrDisplay]), 0.32, 0.004);
    const double slanted = 0.5 / std::cos(radFromDeg(30)) - 0.18;
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[0]), slanted, 0.004);
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[3]), slanted, 0.004);
    EXPECT_EQ(r.sonarCm[1], 30);  // the cone's middle: 0.5 - 0.195
}

TEST(RangeSensors, LookToTheSidesWithDifferentOffsets) {
    // a wall 0.4 m to the right, nothing near on the left
    RangeSensors sensors(fixedSegments(bareRoom()));
    const RangeReadings r = sensors.read({{3.5, 0.4}, 0}, {}, {}, nullptr);
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[4]), 0.28, 0.004);
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[5]), 0.22, 0.004);
    EXPECT_DOUBLE_EQ(irRangeFromAdc(r.irAdc[6]), 0.81);
}

TEST(RangeSensors, TurnWithTheRobot) {
    const RangeReadings ahead = readAt(bareRoom(), {{6.5, 3.5}, 0});
    const RangeReadings turned = readAt(bareRoom(), {{3.5, 6.5}, kExactPi / 2});
    for (std::size_t i = 0; i < kIrSensors; ++i) EXPECT_NEAR(ahead.irAdc[i], turned.irAdc[i], 1);
    EXPECT_EQ(ahead.sonarCm, turned.sonarCm);
}

TEST(Sonar, SeesTheNearestThingInItsCone) {
    Site site = bareRoom();
    // a thin post 10 degrees off the nose, 1 m from the sensor
    const Vec2 post = Vec2{3.5 + 0.195, 3.5} + unitVector(radFromDeg(10));
    site.walls.push_back({post + Vec2{0, -0.1}, post + Vec2{0, 0.1}});
    EXPECT_NEAR(readAt(site, site.start).sonarCm[1], 100, 2);
    // and nothing at 25 degrees
    const Vec2 aside = Vec2{3.5 + 0.195, 3.5} + unitVector(radFromDeg(25));
    site.walls.back() = {aside + Vec2{0, -0.02}, aside + Vec2{0, 0.02}};
    EXPECT_EQ(readAt(site, site.start).sonarCm[1], 300);
}

TEST(Sonar, ReadsThreeMetresWhereNothingComesBack) {
    const RangeReadings r = readAt(bareRoom(7.6, 7.6, {3.8, 3.8}), {{3.8, 3.8}, 0});
    for (const int cm : r.sonarCm) EXPECT_EQ(cm, 300);
}

TEST(RangeSensors, SeePeople) {
    const RangeReadings r = readAt(bareRoom(), {{3.5, 3.5}, 0}, {{4.2, 3.5}});
    EXPECT_NEAR(irRangeFromAdc(r.irAdc[kIrHead]), 0.7 - Body::kPersonRadius_m, 0.004);
}

TEST(PresenceSensors, RestAt2048AndLeaveItByMoreThan500NearAPerson) {
    const Pose robot{{3.5, 3.5}, 0};
    EXPECT_EQ(readAt(bareRoom(), robot).humanAdc[0], 2048);
    EXPECT_GT(readAt(bareRoom(), robot, {{4.5, 3.5}}).humanAdc[0], 2048 + 500);
    EXPECT_LT(readAt(bareRoom(), robot, {{5.7, 3.5}}).humanAdc[0], 2048 + 500);
    EXPECT_EQ(readAt(bareRoom(), robot, {{2.5, 3.5}}).humanAdc[0], 2048) << "behind the robot";
}

TEST(PresenceSensors, DoNotSeeThroughWalls) {
    Site site = bareRoom();
    site.walls.push_back({{4.0, 3.0}, {4.0, 4.0}});
    EXPECT_EQ(readAt(site, site.start, {{4.5, 3.5}}).humanAdc[0], 2048);
}

TEST(RangeSensors, StayInTheConvertersRangeWhateverTheNoise) {
    RangeSensors sensors(fixedSegments(bareRoom()));
    Noise noise(5);
    double sum = 0;
    for (int i = 0; i < 2000; ++i) {
        const RangeReadings r = sensors.read({{6.78, 3.5}, 0.1 * i}, {}, {}, &noise);
        for (const int adc : r.irAdc) {
            ASSERT_GE(adc, 1);
            ASSERT_LE(adc, 4095);
        }
        for (const int cm : r.sonarCm) {
            ASSERT_GE(cm, 2);
            ASSERT_LE(cm, 300);
        }
        sum += sensors.read({{6.5, 3.5}, 0}, {}, {}, &noise).irAdc[kIrHead];
    }
    EXPECT_NEAR(sum / 2000, irAdcFromRange(0.5), 3) << "the noise has no bias";
}

}  // namespace
}  // namespace quorrin
