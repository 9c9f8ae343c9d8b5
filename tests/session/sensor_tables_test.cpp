#include "session/sensor_tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorrin {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;

TEST(SensorTables, IrSensorsSitWhereTheyAreMounted) {
    SensorValues sensors;
    fillSensorTables(sensors);
    EXPECT_THAT(sensors.irRadius, ElementsAre(0.18, 0.18, 0.18, 0.18, 0.12, 0.18, 0.12, 0, 0, 0));
    const double degree = 3.1415926 / 180;
    EXPECT_NEAR(sensors.irAngle[0], 30 * degree, 1e-15);
    EXPECT_NEAR(sensors.irAngle[1], 15 * degree, 1e-15);
    EXPECT_NEAR(sensors.irAngle[2], -15 * degree, 1e-15);
    EXPECT_NEAR(sensors.irAngle[3], -30 * degree, 1e-15);
    EXPECT_NEAR(sensors.irAngle[4], -90 * degree, 1e-15);
    EXPECT_EQ(sensors.irAngle[5], -1.5707963);
    EXPECT_NEAR(sensors.irAngle[6], 90 * degree, 1e-15);
    EXPECT_EQ(sensors.irAngle[7], 0);
    EXPECT_NEAR(sensors.irAngle[8], 25 * degree, 1e-15);
    EXPECT_NEAR(sensors.irAngle[9], -25 * degree, 1e-15);
}

TEST(SensorTables, SonarsSitWhereTheyAreMounted) {
    SensorValues sensors;
    fillSensorTables(sensors);
    EXPECT_THAT(sensors.sonarAngle, ElementsAre(0.78539815, 0, -0.78539815, 3.1415926, 1.0, 1.0));
    EXPECT_EQ(sensors.sonarRadius[0], 0.195);
    EXPECT_EQ(sensors.sonarRadius[1], 0.195);
    EXPECT_EQ(sensors.sonarRadius[2], 0.195);
    EXPECT_EQ(sensors.sonarRadius[3], 0.17);
}

TEST(SensorTables, TheLastTwoSonarRadiiAreLeftAlone) {
    SensorValues sensors;
    sensors.sonarRadius[4] = 7;
    sensors.sonarRadius[5] = 8;
    fillSensorTables(sensors);
    EXPECT_EQ(sensors.sonarRadius[4], 7);
    EXPECT_EQ(sensors.sonarRadius[5], 8);
}

}  // namespace
}  // namespace quorrin
