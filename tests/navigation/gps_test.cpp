#include "navigation/gps.h"

#include <gtest/gtest.h>

#include "support/navigation_station.h"

namespace quorrin {
namespace {

class GpsTask : public ::testing::Test, protected NavigationStation {
  protected:
    GPS gps{clock, values, values};
};

TEST_F(GpsTask, IntegratesEveryFiftyMilliseconds) {
    values.encoderDataValid = true;
    gps.EstInterval = 50;
    gps.run();
    clock.runUntil(49);
    EXPECT_TRUE(gps.odometry().firstSample);
    clock.runUntil(50);
    EXPECT_FALSE(gps.odometry().firstSample);
    values.encoderRight = 100;
    values.encoderLeft = -100;
    clock.runUntil(99);
    EXPECT_EQ(values.robotX, 0);
    clock.runUntil(100);
    EXPECT_GT(values.robotX, 0);
}

TEST_F(GpsTask, RoundsItsIntervalToTheEvenMillisecond) {
    values.encoderDataValid = true;
    gps.EstInterval = 42.5F;
    gps.run();
    clock.runUntil(41);
    EXPECT_TRUE(gps.odometry().firstSample);
    clock.runUntil(42);
    EXPECT_FALSE(gps.odometry().firstSample);
}

TEST_F(GpsTask, TheFirstTickAfterRunOnlyRecordsTheEncoders) {
    values.encoderDataValid = true;
    values.encoderRight = 500;
    gps.run();
    clock.runUntil(50);
    EXPECT_EQ(values.robotX, 0);
    EXPECT_EQ(gps.odometry().previousEncoderRight, 500);
}

TEST_F(GpsTask, SuspendContinueKillAndRefreshChangeNothing) {
    values.encoderDataValid = true;
    gps.run();
    gps.suspend();
    gps.Kill();
    gps.Refresh();
    gps.continue_();
    clock.runUntil(50);
    EXPECT_FALSE(gps.odometry().firstSample);
}

TEST_F(GpsTask, GetLatestLeavesItsArgumentsAlone) {
    double x = 1;
    double y = 2;
    double z = 3;
    double angel = 4;
    Integer coordinate = 5;
    EXPECT_FALSE(gps.GetLatest(x, y, z, angel, coordinate));
    EXPECT_EQ(x, 1);
    EXPECT_EQ(y, 2);
    EXPECT_EQ(z, 3);
    EXPECT_EQ(angel, 4);
    EXPECT_EQ(coordinate, 5);
}

TEST_F(GpsTask, TaskEndStopsTheTimer) {
    values.encoderDataValid = true;
    gps.run();
    gps.task_end();
    clock.runUntil(500);
    EXPECT_TRUE(gps.odometry().firstSample);
}

TEST_F(GpsTask, TaskEndBeforeRunPasses) {
    gps.task_end();
    clock.runUntil(500);
    EXPECT_EQ(values.robotX, 0);
}

}  // namespace
}  // namespace quorrin
