#include "navigation/sensor_map_builder.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "support/navigation_station.h"
#include "support/plain_sensor_map.h"

namespace quorrin {
namespace {

class SensorMapTask : public ::testing::Test, protected NavigationStation {
  protected:
    SensorMapTask() { task.run(); }
    void tick() { task.RunTimer_Timer(100); }
    std::int16_t& cell(int x, int y) {
        return values.certaintyGrid[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
    }
    SensorMapBuilder task{clock, values, values, values, controls};
};

TEST_F(SensorMapTask, RunSaysGoAndEmptiesTheGrid) {
    cell(3, 4) = 9;
    cell(160, 160) = 9;
    task.run();
    EXPECT_EQ(task.Status, "go");
    EXPECT_EQ(values.certaintyGrid, MapValues{}.certaintyGrid);
    EXPECT_EQ(task.decayCountdown(), 15);
}

TEST_F(SensorMapTask, TicksEveryHundredMilliseconds) {
    clock.runUntil(99);
    EXPECT_EQ(task.decayCountdown(), 15);
    clock.runUntil(100);
    EXPECT_EQ(task.decayCountdown(), 14);
    clock.runUntil(500);
    EXPECT_EQ(task.decayCountdown(), 10);
}

TEST_F(SensorMapTask, SuspendAndKillChangeNothingAndTaskEndStops) {
    task.suspend();
    task.Kill();
    task.continue_();
    clock.runUntil(200);
    EXPECT_EQ(task.decayCountdown(), 13);
    task.task_end();
    clock.runUntil(900);
    EXPECT_EQ(task.decayCountdown(), 13);
}

TEST_F(SensorMapTask, TaskEndBeforeRunPasses) {
    SensorMapBuilder idle(clock, values, values, values, controls);
    idle.task_end();
    clock.runUntil(300);
    EXPECT_EQ(idle.decayCountdown(), 0);
    EXPECT_EQ(idle.Status, "");
}

TEST_F(SensorMapTask, AReadingClearsItsRayAndMarksItsHit) {
    for (int x = 70; x < 90; ++x) cell(x, 80) = 5;
    values.irRange[7] = 0.5;  // bearing 0, offset 0
    tick();
    EXPECT_EQ(cell(79, 80), 5);
    for (int x = 80; x < 85; ++x) EXPECT_EQ(cell(x, 80), 4) << x;
    EXPECT_EQ(cell(85, 80), 8);
    EXPECT_EQ(cell(86, 80), 5);
}

TEST_F(SensorMapTask, TheRangeIsTakenFromTheRobotsCentreAlongItsHeading) {
    values.robotX = 1.0;
    values.robotY = -2.0;
    values.robotTheta = 1.5707963;
    values.irRange[7] = 0.4;
    tick();
    EXPECT_EQ(cell(90, 64), 3);
}

TEST_F(SensorMapTask, AReadingAtTheMarkingLimitMarks) {
    values.irRange[5] = 0.18 + 0.53;
    tick();
    EXPECT_EQ(cell(80, 73), 3);
}

TEST_F(SensorMapTask, BeyondTheMarkingLimitTheRayOnlyClears) {
    cell(80, 75) = 5;
    cell(80, 73) = 5;
    values.irRange[5] = 0.711;
    tick();
    EXPECT_EQ(cell(80, 75), 4);
    EXPECT_EQ(cell(80, 73), 5);
}

TEST_F(SensorMapTask, AReadingAtTheSensorsOwnFootIsSkipped) {
    cell(80, 80) = 5;
    values.irRange[5] = 0.27;
    tick();
    EXPECT_EQ(cell(80, 80), 5);
    values.irRange[5] = 0.28;
    tick();
    EXPECT_EQ(cell(80, 80), 4);
}

TEST_F(SensorMapTask, NegativeRangesAreSkipped) {
    for (double& range : values.irRange) range = -1.28;
    for (double& range : values.sonarRange) range = -1;
    cell(80, 80) = 5;
    tick();
    EXPECT_EQ(cell(80, 80), 5);
}

TEST_F(SensorMapTask, SensorsWithoutOffsetCountFromATenthOfAMetre) {
    for (std::size_t i = 7; i < 10; ++i) {
        values.irRange = {};
        values.certaintyGrid = {};
        values.irRange[i] = 0.0999;
        tick();
        EXPECT_EQ(cell(81, 80), 0) << i;
        values.irRange[i] = 0.1;
        tick();
        EXPECT_EQ(cell(81, 80), 3) << i;
    }
}

TEST_F(SensorMapTask, OnlyTheFirstThreeSonarsFeedTheMap) {
    cell(80, 80) = 5;
    for (std::size_t i = 3; i < 6; ++i) values.sonarRange[i] = 1.0;
    tick();
    EXPECT_EQ(cell(80, 80), 5);
    values.sonarRange[1] = 1.0;
    tick();
    EXPECT_EQ(cell(80, 80), 4);
    EXPECT_EQ(cell(90, 80), 3);
}

TEST_F(SensorMapTask, SonarLimitsAreOffsetPlusTwoHundredthsAndPlusTwoMetres) {
    cell(80, 80) = 9;
    values.sonarRange[1] = 0.195 + 0.019;
    tick();
    EXPECT_EQ(cell(80, 80), 9);
    values.sonarRange[1] = 0.195 + 0.02;
    tick();
    EXPECT_EQ(cell(80, 80), 8);
    values.certaintyGrid = {};
    values.sonarRange[1] = 0.195 + 2.0;
    tick();
    EXPECT_EQ(cell(102, 80), 3);
    values.sonarRange[1] = 2.2;
    values.certaintyGrid = {};
    tick();
    EXPECT_EQ(cell(102, 80), 0);
}

TEST_F(SensorMapTask, ThresholdIsReadFromItsBox) {
    cell(81, 80) = 15;
    controls.txtTh1.setText("0");
    tick();
    EXPECT_EQ(values.binaryHistogram[19], 1);
    controls.txtTh1.setText("1000");
    tick();
    EXPECT_EQ(values.binaryHistogram[19], 0);
}

TEST_F(SensorMapTask, AThresholdThatIsNoNumberEndsTheTickBeforeItsFading) {
    values.binaryHistogram.fill(1);
    controls.txtTh1.setText("many");
    tick();
    EXPECT_EQ(values.binaryHistogram[1], 1);
    EXPECT_EQ(task.decayCountdown(), 15);
}

TEST_F(SensorMapTask, AnOverflowAbortsThatTickOnly) {
    cell(81, 80) = 200;
    tick();
    EXPECT_EQ(task.decayCountdown(), 15);
    cell(81, 80) = 0;
    tick();
    EXPECT_EQ(task.decayCountdown(), 14);
}

TEST_F(SensorMapTask, AHitThatDoesNotFitAbortsThatTickOnly) {
    values.irRange[7] = 1e5;
    tick();
    EXPECT_EQ(task.decayCountdown(), 15);
}

TEST_F(SensorMapTask, TheMapsRangeIsOpenAtBothEnds) {
    const auto inRange = [&](double x, double y) {
        values.robotX = x;
        values.robotY = y;
        return task.inMapRange();
    };
    EXPECT_FALSE(inRange(-7.9, 0));
    EXPECT_FALSE(inRange(0, -7.9));
    EXPECT_FALSE(inRange(8.0, 0));
    EXPECT_FALSE(inRange(0, 8.0));
    EXPECT_TRUE(inRange(-7.8999, 7.9999));
    EXPECT_TRUE(inRange(7.9999, -7.8999));
}

TEST_F(SensorMapTask, OutOfRangeNothingIsUpdatedAndTheHistogramsStay) {
    values.robotX = -7.9;
    values.polarHistogram.fill(77);
    values.binaryHistogram.fill(1);
    values.irRange[7] = 0.5;
    tick();
    EXPECT_EQ(values.certaintyGrid, MapValues{}.certaintyGrid);
    EXPECT_EQ(values.polarHistogram[5], 77);
    EXPECT_EQ(values.binaryHistogram[5], 1);
}

TEST_F(SensorMapTask, FadesEverySixteenthTick) {
    cell(20, 20) = 9;
    for (int i = 0; i < 15; ++i) tick();
    EXPECT_EQ(cell(20, 20), 9);
    tick();
    EXPECT_EQ(cell(20, 20), 8);
    for (int i = 0; i < 15; ++i) tick();
    EXPECT_EQ(cell(20, 20), 8);
    tick();
    EXPECT_EQ(cell(20, 20), 7);
}

TEST_F(SensorMapTask, FadingGoesOnOutOfRange) {
    values.robotX = 9;
    cell(20, 20) = 9;
    clock.runUntil(1600);
    EXPECT_EQ(cell(20, 20), 8);
}

TEST_F(SensorMapTask, AMarkedWallBlocksTheSectorsInFront) {
    for (int y = 76; y <= 84; ++y) cell(84, y) = 15;
    tick();
    EXPECT_EQ(values.binaryHistogram[18], 1);
    EXPECT_EQ(values.binaryHistogram[19], 1);
    EXPECT_EQ(values.binaryHistogram[1], 0);
}

TEST_F(SensorMapTask, MarkingAndClearingCanBeCalledFromOutside) {
    EXPECT_TRUE(task.markCell(10, 10));
    EXPECT_EQ(cell(10, 10), 3);
    EXPECT_FALSE(task.markCell(160, 10));
    task.clearRay(8, 10, 12, 10);
    EXPECT_EQ(cell(10, 10), 2);
}

TEST_F(SensorMapTask, AnyWanderEqualsTheFormulasWrittenPlainly) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> unit(0, 1);
    const auto reference = std::make_unique<plain::SensorMap>();
    for (int i = 0; i < 4000; ++i) {
        if (i % 400 == 0) {
            values.robotX = (unit(random) - 0.5) * 16.4;
            values.robotY = (unit(random) - 0.5) * 16.4;
        }
        values.robotTheta = (unit(random) - 0.5) * 6.2831852;
        values.robotX += (unit(random) - 0.5) * 0.1;
        values.robotY += (unit(random) - 0.5) * 0.1;
        for (double& range : values.irRange) range = unit(random) * 0.95 - 0.1;
        for (double& range : values.sonarRange) range = unit(random) * 2.5;
        tick();
        reference->tick(values, values, 40);
        ASSERT_EQ(values.certaintyGrid, reference->map.certaintyGrid) << i;
        ASSERT_EQ(values.polarHistogram, reference->map.polarHistogram) << i;
        ASSERT_EQ(values.binaryHistogram, reference->map.binaryHistogram) << i;
    }
}

}  // namespace
}  // namespace quorrin
