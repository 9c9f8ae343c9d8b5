#include "navigation/anti_stuck.h"

#include <gtest/gtest.h>

#include "base/program_error.h"
#include "support/navigation_station.h"

namespace quorrin {
namespace {

using Lines = std::vector<std::string>;

// A robot that drives forward at 400 counts per second under a watching detector.
class StuckTask : public ::testing::Test, protected NavigationStation {
  protected:
    StuckTask() {
        values.antiStuckEnabled = true;
        values.wheelCmdLeft = -400;
        values.wheelCmdRight = 400;
    }
    void tick() { task.chkTimer_Timer(200); }
    // A current that lifts the filter over its limit at once, or lets it fall under it at once.
    void push(bool left, bool right) {
        values.motorCurrentLeft = left ? 10 : 0;
        values.motorCurrentRight = right ? 10 : 0;
    }
    AntiStuck task{clock, values, values, link};
    const Lines reversed{"SetDriveVelocities 400 -400 -32768 -32768 -32768 -32768"};
};

TEST_F(StuckTask, AStandingRobotWithIdleDrivesIsNotHeld) {
    values.motorCurrentLeft = 0.05;
    for (int i = 0; i < 100; ++i) tick();
    EXPECT_FALSE(values.inStuck);
    EXPECT_EQ(task.state().stuckCountLeft, 0);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(StuckTask, TheRatioIsCurrentOverSpeedPlusOneFiltered) {
    values.motorCurrentLeft = 0.5;
    values.wheelSpeedLeft = -3;
    values.motorCurrentRight = 0.5;
    values.wheelSpeedRight = 4;
    tick();
    EXPECT_DOUBLE_EQ(task.state().filteredRatioLeft, 0.2 * 0.25);
    EXPECT_DOUBLE_EQ(task.state().filteredRatioRight, 0.2 * 0.1);
    tick();
    EXPECT_DOUBLE_EQ(task.state().filteredRatioLeft, 0.8 * (0.2 * 0.25) + 0.2 * 0.25);
}

TEST_F(StuckTask, TwoTicksOverTheLimitInARowHold) {
    push(true, false);
    tick();
    EXPECT_EQ(task.state().stuckCountLeft, 3);
    EXPECT_FALSE(values.inStuck);
    tick();
    EXPECT_EQ(task.state().stuckCountLeft, 6);
    EXPECT_TRUE(values.inStuck);
    EXPECT_TRUE(values.stuckLeft);
    EXPECT_FALSE(values.stuckRight);
}

TEST_F(StuckTask, EitherSideAloneHolds) {
    push(false, true);
    tick();
    tick();
    EXPECT_TRUE(values.inStuck);
    EXPECT_FALSE(values.stuckLeft);
    EXPECT_TRUE(values.stuckRight);
}

TEST_F(StuckTask, AHoldReversesTheLastCommandOnEveryTick) {
    push(true, true);
    tick();
    EXPECT_TRUE(link.operations().empty());
    tick();
    EXPECT_EQ(link.take(), reversed);
    tick();
    EXPECT_EQ(link.take(), reversed);
}

TEST_F(StuckTask, AZeroCommandIsHeldAtZero) {
    values.wheelCmdLeft = values.wheelCmdRight = 0;
    push(true, true);
    tick();
    tick();
    EXPECT_EQ(link.take(), Lines{"SetDriveVelocities 0 0 -32768 -32768 -32768 -32768"});
}

TEST_F(StuckTask, OneTickUnderTheLimitReleasesAtOnceAndOneOverHoldsAgain) {
    values.stuckRatioLimit = 1.0;
    values.motorCurrentLeft = 5.4;
    tick();
    tick();
    ASSERT_TRUE(values.inStuck);
    values.motorCurrentLeft = 0;
    while (values.inStuck) tick();
    EXPECT_EQ(task.state().stuckCountLeft, 5);
    values.motorCurrentLeft = 20;
    tick();
    EXPECT_EQ(task.state().stuckCountLeft, 6);
    EXPECT_TRUE(values.inStuck);
}

TEST_F(StuckTask, TheCountNeverFallsBelowZero) {
    tick();
    tick();
    EXPECT_EQ(task.state().stuckCountLeft, 0);
}

TEST_F(StuckTask, TheLimitItselfIsNotOver) {
    values.stuckRatioLimit = 0.2 * 1.0;
    values.motorCurrentLeft = 1.0;
    tick();
    EXPECT_EQ(task.state().stuckCountLeft, 0);
}

TEST_F(StuckTask, AnInhibitStillHoldsTheNavigatorOff) {
    values.motionInhibit = true;
    push(true, true);
    tick();
    tick();
    EXPECT_TRUE(values.inStuck);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(StuckTask, SwitchingItOffReleasesAndKeepsFilterAndCount) {
    push(true, true);
    tick();
    tick();
    const double ratio = task.state().filteredRatioLeft;
    values.antiStuckEnabled = false;
    tick();
    EXPECT_FALSE(values.inStuck);
    EXPECT_FALSE(values.stuckLeft);
    EXPECT_FALSE(values.stuckRight);
    EXPECT_EQ(task.state().filteredRatioLeft, ratio);
    EXPECT_EQ(task.state().stuckCountLeft, 6);
}

TEST_F(StuckTask, AWheelSpeedOfMinusOneIsFatal) {
    values.wheelSpeedRight = -1;
    EXPECT_THROW(tick(), ProgramError);
    values.antiStuckEnabled = false;
    EXPECT_NO_THROW(tick());
}

TEST_F(StuckTask, ChecksEveryTwoHundredMillisecondsFromRunToTaskEnd) {
    task.run();
    push(true, true);
    clock.runUntil(399);
    EXPECT_FALSE(values.inStuck);
    clock.runUntil(400);
    EXPECT_TRUE(values.inStuck);
    task.task_end();
    link.take();
    clock.runUntil(2000);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(StuckTask, ItsIntervalIsThatAtRun) {
    task.timeInterval = 50;
    task.run();
    task.timeInterval = 1000;
    push(true, true);
    clock.runUntil(100);
    EXPECT_TRUE(values.inStuck);
}

TEST_F(StuckTask, TaskEndBeforeRunPasses) {
    task.task_end();
    push(true, true);
    clock.runUntil(1000);
    EXPECT_FALSE(values.inStuck);
}

TEST_F(StuckTask, ItsEventsAreNeverRaised) {
    int raised = 0;
    task.Instuck = task.stuckClear = [&] { ++raised; };
    push(true, true);
    tick();
    tick();
    values.antiStuckEnabled = false;
    tick();
    EXPECT_EQ(raised, 0);
}

}  // namespace
}  // namespace quorrin
