#include <gtest/gtest.h>

#include <cmath>

#include "base/program_error.h"
#include "navigation/math/wheels.h"
#include "navigation/speed_p2p_vfh.h"
#include "support/navigator_fixture.h"

namespace quorrin {
namespace {

using Lines = std::vector<std::string>;
using Navigator = NavigatorFixture;

TEST_F(Navigator, RunTakesVelocityModeAndStartsTheTimer) {
    task.targettime = 2.5;
    task.forgetable = true;
    values.finishCount = 7;
    EXPECT_FALSE(task.running());
    task.run();
    EXPECT_EQ(link.take(), (Lines{"SetDriveControlMode 0 2", "SetDriveControlMode 1 2"}));
    EXPECT_EQ(task.Status, "run");
    EXPECT_TRUE(task.active());
    EXPECT_TRUE(task.running());
    EXPECT_EQ(task.tickCount(), 0);
    EXPECT_EQ(task.tickLimit(), 25);
    EXPECT_EQ(task.toleranceNow(), 0.12);
    EXPECT_TRUE(task.turnDoneFlag());
    EXPECT_EQ(values.finishCount, 0);
}

TEST_F(Navigator, DoesNotTickBeforeRun) {
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Navigator, CommandsTheWheelsEveryHundredMilliseconds) {
    start();
    clock.runUntil(99);
    EXPECT_TRUE(link.operations().empty());
    clock.runUntil(100);
    EXPECT_EQ(link.take(), Lines{ahead});
    clock.runUntil(300);
    EXPECT_EQ(link.take(), (Lines{ahead, ahead}));
}

TEST_F(Navigator, ATimeIntervalWrittenLaterChangesNothing) {
    task.timeInterval = 20;
    start();
    task.timeInterval = 5000;
    clock.runUntil(1000);
    EXPECT_EQ(link.count("SetDriveVelocities"), 10U);
}

TEST_F(Navigator, SuspendLeavesTheLastCommandInForce) {
    start();
    clock.runUntil(100);
    link.take();
    task.suspend();
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_TRUE(task.running());
    task.continue_();
    clock.runUntil(1100);
    EXPECT_EQ(link.take(), Lines{ahead});
}

TEST_F(Navigator, KillDoesNothingAndTaskEndStops) {
    start();
    task.Kill();
    clock.runUntil(100);
    EXPECT_EQ(link.take().size(), 1U);
    task.task_end();
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_FALSE(task.running());
}

TEST_F(Navigator, TaskEndWithoutRunAndTwicePasses) {
    task.task_end();
    task.task_end();
    clock.runUntil(500);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Navigator, WritesTheWheelCommandsToTheRecord) {
    start();
    tick();
    EXPECT_EQ(values.wheelCmdLeft, -764);
    EXPECT_EQ(values.wheelCmdRight, 764);
}

TEST_F(Navigator, ATargetToTheLeftTurnsLeft) {
    task.TargetX = 0;
    task.TargetY = 2;
    start();
    tick();
    const double factor = 0.25 / 1.5707963;
    const int left = radPerSecToCounts(leftWheelRate(0.3 * factor, 0.8));
    const int right = radPerSecToCounts(rightWheelRate(0.3 * factor, 0.8));
    EXPECT_EQ(link.take(), Lines{velocities(-left, right)});
    EXPECT_EQ(task.headingError(), 1.5707963);
    EXPECT_GT(right, left);
}

TEST_F(Navigator, AnInhibitKeepsTheCommandFromTheRobotOnly) {
    values.motionInhibit = true;
    start();
    tick();
    EXPECT_TRUE(link.operations().empty());
    EXPECT_EQ(values.wheelCmdRight, 764);
}

TEST_F(Navigator, LandmarkHoldWaitsForThePendingSelection) {
    start();
    values.landmarkHold = -1;
    values.landmarkSelectPending = true;
    tick();
    EXPECT_TRUE(link.operations().empty());
    values.landmarkSelectPending = false;
    tick();
    EXPECT_EQ(link.take().size(), 1U);
}

TEST_F(Navigator, APendingSelectionWithoutHoldDoesNotWait) {
    start();
    values.landmarkSelectPending = true;
    tick();
    EXPECT_EQ(link.take().size(), 1U);
}

TEST_F(Navigator, AHoldThatIsNoTruthValueAlwaysWaits) {
    start();
    values.landmarkHold = 1;
    tick();
    EXPECT_TRUE(link.operations().empty());
    EXPECT_EQ(task.targetDistanceM(), 0);
}

TEST_F(Navigator, WhileStuckTheDistanceStaysCurrentAndNoCommandIssues) {
    start();
    values.inStuck = true;
    tick();
    EXPECT_EQ(task.targetDistanceM(), 2);
    values.robotX = 0.5;
    tick();
    EXPECT_EQ(task.targetDistanceM(), 1.5);
    EXPECT_TRUE(link.operations().empty());
    values.inStuck = false;
    tick();
    EXPECT_EQ(link.take().size(), 1U);
}

TEST_F(Navigator, ATargetWithinToleranceAndMarginArrivesOnTheFirstTick) {
    int arrivals = 0;
    task.PathFollowComplete = [&] { ++arrivals; };
    task.TargetX = 0.12 + 0.02;
    start();
    tick();
    EXPECT_EQ(arrivals, 1);
    EXPECT_FALSE(task.running());
    EXPECT_EQ(link.take(), (Lines{"SuspendDrive 0", "SuspendDrive 1"}));
}

TEST_F(Navigator, JustBeyondTheMarginItDrives) {
    task.TargetX = 0.141;
    start();
    tick();
    EXPECT_TRUE(task.running());
    EXPECT_EQ(link.count("SetDriveVelocities"), 1U);
}

TEST_F(Navigator, ANonstopArrivalLeavesTheDrivesRolling) {
    int arrivals = 0;
    task.PathFollowComplete = [&] { ++arrivals; };
    task.nonstop = true;
    task.TargetX = 0.1;
    start();
    clock.runUntil(1000);
    EXPECT_EQ(arrivals, 1);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_FALSE(task.running());
}

TEST_F(Navigator, RunStartsItAgainAfterAnArrival) {
    task.TargetX = 0.1;
    start();
    clock.runUntil(200);
    task.TargetX = 2;
    start();
    clock.runUntil(300);
    EXPECT_EQ(link.take(), Lines{ahead});
}

TEST_F(Navigator, ForgettingCountsTicksAndWidensTheTolerance) {
    task.forgetable = true;
    task.targettime = 0.3;
    start();
    for (int i = 0; i < 3; ++i) tick();
    EXPECT_EQ(controls.txtCnt.text(), "3");
    EXPECT_EQ(task.toleranceNow(), 0.12);
    tick();
    EXPECT_EQ(controls.txtCnt.text(), "4");
    EXPECT_EQ(task.toleranceNow(), 0.12 + 0.01);
}

TEST_F(Navigator, AForgetableRunArrivesInTheEnd) {
    task.forgetable = true;
    task.targettime = 1;
    start();
    clock.runUntil(60'000);
    EXPECT_FALSE(task.running());
    EXPECT_EQ(task.tickCount(), 196);  // 10 and the 186 steps from 0.12 to 1.98 m
}

TEST_F(Navigator, ARunThatIsNotForgetableGoesOn) {
    start();
    clock.runUntil(600'000);
    EXPECT_TRUE(task.running());
    EXPECT_EQ(task.tickCount(), 0);
    EXPECT_EQ(controls.txtCnt.text(), "");
}

TEST_F(Navigator, TailFirstMeasuresAtTheTailAndSwapsTheSides) {
    values.reverseDrive = true;
    values.robotTheta = 0.1;
    task.TargetX = -2;
    start();
    tick();
    EXPECT_TRUE(task.reverseFlag());
    EXPECT_EQ(task.referenceHeading(), 0.1 - 3.1415926);
    EXPECT_NEAR(task.headingError(), -0.1, 1e-6);
    const double turn = -0.4;
    const int left = radPerSecToCounts(leftWheelRate(0.3, turn));
    const int right = radPerSecToCounts(rightWheelRate(0.3, turn));
    EXPECT_EQ(link.take(), Lines{velocities(right, -left)});
}

TEST_F(Navigator, AWheelRateThatDoesNotFitIsFatal) {
    task.TargetForwardspeed = 13;  // 173 rad/s
    start();
    EXPECT_THROW(tick(), ProgramError);
    task.TargetForwardspeed = 1e308;
    EXPECT_THROW(tick(), ProgramError);
}

TEST_F(Navigator, ATargetSoFarThatItsDistanceOverflowsIsFatal) {
    task.TargetX = 1e200;
    start();
    EXPECT_THROW(tick(), ProgramError);
}

TEST_F(Navigator, ATargetTimeBeyondAnIntegersTicksIsFatal) {
    task.targettime = 3300;
    EXPECT_THROW(task.run(), ProgramError);
}

TEST_F(Navigator, WrapSectorAnswersThroughItsSecondArgument) {
    Integer out;
    task.wrapSector(0, out);
    EXPECT_EQ(out, 36);
    task.wrapSector(40, out);
    EXPECT_EQ(out, 4);
}

TEST_F(Navigator, SixteenLettersOfStatusNeedNoHeap) {
    EXPECT_GE(task.CAStatus.capacity(), std::string("openwithnochange").size());
}

}  // namespace
}  // namespace quorrin
