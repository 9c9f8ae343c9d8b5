#include "navigation/ssgps.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/navigation_station.h"

namespace quorrin {
namespace {

class SsgpsTask : public ::testing::Test, protected NavigationStation {
  protected:
    SsgpsTask() {
        values.encoderDataValid = true;
        values.landmarkRunEnabled = true;
        values.landmarkPos = {{}, {0, 0, 0, 2}, {0, 2, 0, 2}};
        values.landmarkRangeA.assign(3, 0);
        values.landmarkRangeB.assign(3, 0);
        values.landmarkCount = 2;
        values.landmarkPairTable = {{}, {0, 1, 2}, {0, 3, 4}, {0, 7, 8}, {0, 5, 10}};
        values.pairA1 = values.pairB1 = 1;
        values.pairA2 = values.pairB2 = 2;
        task.SonarGPSInterval = 200;
    }
    // Receivers at (0.9, -1) and (1.1, -1).
    void ranges() {
        const double nearer = std::sqrt(0.81 + 1 + 4);
        const double farther = std::sqrt(1.21 + 1 + 4);
        values.landmarkRangeA = {0, nearer, farther};
        values.landmarkRangeB = {0, farther, nearer};
    }
    void tick() { task.EstTimer_Timer(200); }

    SSGPS task{clock, values, values, values, controls, link};
};

TEST_F(SsgpsTask, AFixReplacesThePoseOutright) {
    values.robotX = 5;
    values.lostFixCount = 40;
    ranges();
    tick();
    EXPECT_NEAR(values.robotX, 1.0, 1e-9);
    EXPECT_NEAR(values.robotY, -1.0, 1e-9);
    EXPECT_NEAR(values.robotTheta, -1.5707963, 1e-6);
    EXPECT_TRUE(controls.chkGPS.checked());
    EXPECT_EQ(values.lostFixCount, 0);
    EXPECT_TRUE(values.landmarkLocked);
}

TEST_F(SsgpsTask, AFixIsCopiedForTheDisplay) {
    ranges();
    tick();
    EXPECT_EQ(values.fixX, values.robotX);
    EXPECT_EQ(values.fixY, values.robotY);
    EXPECT_EQ(values.fixTheta, values.robotTheta);
    EXPECT_EQ(values.fixX2, values.robotX);
    EXPECT_EQ(values.fixY2, values.robotY);
    EXPECT_EQ(values.fixTheta2, values.robotTheta);
}

TEST_F(SsgpsTask, ARangeIsUsedForOneTickOnly) {
    ranges();
    tick();
    EXPECT_EQ(values.landmarkRangeA[1], 0);
    EXPECT_EQ(values.landmarkRangeB[2], 0);
    tick();
    EXPECT_FALSE(controls.chkGPS.checked());
    EXPECT_EQ(values.lostFixCount, 1);
}

TEST_F(SsgpsTask, TheFiftiethLostFixJumpsToSixtyAndStays) {
    values.lostFixCount = 48;
    tick();
    EXPECT_EQ(values.lostFixCount, 49);
    tick();
    EXPECT_EQ(values.lostFixCount, 60);
    tick();
    EXPECT_EQ(values.lostFixCount, 60);
}

TEST_F(SsgpsTask, ARangeResetOfTheOdometryAlsoEndsAtSixty) {
    values.lostFixCount = 50;
    tick();
    EXPECT_EQ(values.lostFixCount, 60);
}

TEST_F(SsgpsTask, WithoutLeaveOrMotionFramesNoFixIsTried) {
    ranges();
    values.landmarkRunEnabled = false;
    tick();
    EXPECT_EQ(values.lostFixCount, 0);
    ranges();
    values.landmarkRunEnabled = true;
    values.encoderDataValid = false;
    tick();
    EXPECT_EQ(values.lostFixCount, 0);
    EXPECT_EQ(values.landmarkRangeA[1], 0) << "ranges go all the same";
}

TEST_F(SsgpsTask, WithoutTablesTheFixCountsAsLost) {
    values.landmarkPos.clear();
    values.landmarkRangeA.clear();
    values.landmarkRangeB.clear();
    values.landmarkCount = 0;
    tick();
    EXPECT_EQ(values.lostFixCount, 1);
}

TEST_F(SsgpsTask, SelectsTheZoneOfThePose) {
    values.landmarkLocked = true;
    values.robotX = -1;
    tick();
    EXPECT_EQ(link.take(), std::vector<std::string>{"SelectLandmarks 3 4 1 2"});
    EXPECT_TRUE(values.landmarkSelectPending);
}

TEST_F(SsgpsTask, AHoldKeepsTheSelection) {
    values.landmarkLocked = true;
    values.landmarkHold = -1;
    values.robotX = -1;
    tick();
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(SsgpsTask, TicksAtItsIntervalFromRunToTaskEnd) {
    task.run();
    clock.runUntil(199);
    EXPECT_EQ(values.lostFixCount, 0);
    clock.runUntil(400);
    EXPECT_EQ(values.lostFixCount, 2);
    task.suspend();
    task.Kill();
    task.Refresh();
    clock.runUntil(600);
    EXPECT_EQ(values.lostFixCount, 3);
    task.task_end();
    clock.runUntil(2000);
    EXPECT_EQ(values.lostFixCount, 3);
}

TEST_F(SsgpsTask, TaskEndBeforeRunPasses) {
    task.task_end();
    clock.runUntil(1000);
    EXPECT_EQ(values.lostFixCount, 0);
}

TEST_F(SsgpsTask, GetLatestLeavesItsArgumentsAlone) {
    double x = 1;
    double y = 2;
    double z = 3;
    double angel = 4;
    Integer coordinate = 5;
    EXPECT_FALSE(task.GetLatest(x, y, z, angel, coordinate));
    EXPECT_EQ(x + y + z + angel + coordinate.value(), 15);
}

}  // namespace
}  // namespace quorrin
