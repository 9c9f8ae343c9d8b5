#include "navigation/teleoperation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/program_error.h"
#include "navigation/anti_stuck.h"
#include "support/navigation_station.h"

namespace quorrin {
namespace {

using Lines = std::vector<std::string>;

class Driver : public ::testing::Test, protected NavigationStation {
  protected:
    Driver() {
        values.steeringLevel = 5000;
        values.gasLevel = 5000;
        values.brakeLevel = 10000;
        values.joystickY = 5000;
        task.targetDistance = 1.0;
        task.timeInterval = 100;
    }
    void start() {
        task.run();
        link.take();
    }
    const speedP2PVFH& nav() const { return *task.navigator(); }
    void expectTarget(double offset) {
        EXPECT_DOUBLE_EQ(nav().TargetX, values.robotX + std::cos(values.robotTheta + offset));
        EXPECT_DOUBLE_EQ(nav().TargetY, values.robotY + std::sin(values.robotTheta + offset));
    }
    Teleoperation task{clock, values, controls, link};
    static constexpr double kFull = 0.5235987666666667;
};

TEST_F(Driver, HasItsDefaults) {
    Teleoperation fresh(clock, values, controls, link);
    EXPECT_EQ(fresh.timeInterval, 100);
    EXPECT_EQ(fresh.maxforwardspeed, 0.6);
    EXPECT_EQ(fresh.maxTurnspeed, 45.0 * 3.1415926 / 180.0);
    EXPECT_FALSE(fresh.active());
    EXPECT_EQ(fresh.navigator(), nullptr);
}

TEST_F(Driver, RunBuildsItsNavigatorAndEndsSuspended) {
    task.run();
    EXPECT_EQ(link.take(), (Lines{"SetDriveControlMode 0 2", "SetDriveControlMode 1 2", "SuspendDrive 0",
                                  "SuspendDrive 1"}));
    EXPECT_FALSE(task.active());
    ASSERT_NE(task.navigator(), nullptr);
    EXPECT_EQ(nav().Status, "run");
    EXPECT_TRUE(nav().active());
    EXPECT_EQ(nav().toleranceNow(), 0.12);
}

TEST_F(Driver, TheFirstInactiveTickSuspendsTheNavigatorBeforeItCommands) {
    start();
    clock.runUntil(1000);
    EXPECT_FALSE(nav().active());
    EXPECT_TRUE(nav().running());
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Driver, AnActiveTickSetsThePointAndTheNavigatorFollowsAtOnce) {
    start();
    clock.runUntil(150);
    task.continue_();
    EXPECT_TRUE(link.operations().empty());
    clock.runUntil(200);
    EXPECT_EQ(link.count("SetDriveVelocities"), 1U);
    clock.runUntil(1200);
    EXPECT_EQ(link.count("SetDriveVelocities"), 11U);
}

TEST_F(Driver, SuspendStopsTheDrivesAndHoldsTheNavigator) {
    start();
    task.continue_();
    clock.runUntil(300);
    link.take();
    task.suspend();
    EXPECT_EQ(link.take(), (Lines{"SuspendDrive 0", "SuspendDrive 1"}));
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Driver, FillsTheNavigatorsFields) {
    start();
    task.maxTurnspeed = 0.5;
    task.nextpoint();
    EXPECT_FALSE(nav().finalPosture);
    EXPECT_TRUE(nav().nonstop);
    EXPECT_DOUBLE_EQ(nav().TargetForwardspeed, 0.6 * 0.325);
    EXPECT_EQ(nav().timeInterval, 100);
    EXPECT_EQ(nav().lowerTolerance, 0.12);
    EXPECT_FALSE(nav().forgetable);
    EXPECT_EQ(nav().maxTurnspeed, 0.5);
    expectTarget(0);
}

TEST_F(Driver, TheTargetMovesWithThePose) {
    start();
    values.robotX = 2;
    values.robotY = -3;
    values.robotTheta = 0.7;
    task.targetDistance = 1.0;
    task.nextpoint();
    expectTarget(0);
}

TEST_F(Driver, FullSteeringIsThirtyDegreesToEitherSide) {
    start();
    values.steeringLevel = 0;
    task.nextpoint();
    expectTarget(kFull);
    EXPECT_NEAR(kFull, degToRad(30), 1e-8);
    values.steeringLevel = 10000;
    task.nextpoint();
    expectTarget(-kFull);
    values.steeringLevel = 2500;
    task.nextpoint();
    expectTarget(0.5 * kFull);
}

TEST_F(Driver, TheBrakeMustExceedNineThousand) {
    start();
    values.steeringLevel = 0;
    values.gasLevel = 0;
    values.brakeLevel = 9000;
    task.nextpoint();
    EXPECT_EQ(nav().TargetForwardspeed, 0);
    expectTarget(0);
    values.brakeLevel = 9001;
    task.nextpoint();
    EXPECT_DOUBLE_EQ(nav().TargetForwardspeed, 0.6 * 0.65);
    expectTarget(kFull);
}

TEST_F(Driver, SlowMotionIsNotGuarded) {
    start();
    values.gasLevel = 9001;
    task.nextpoint();
    EXPECT_FALSE(values.vfhActive);
    EXPECT_DOUBLE_EQ(nav().TargetForwardspeed, 0.6 * (999 * 0.65 / 10000));
    values.gasLevel = 9000;
    task.nextpoint();
    EXPECT_TRUE(values.vfhActive);
}

TEST_F(Driver, GasBeyondNoneBacksUp) {
    start();
    values.gasLevel = 12000;
    task.nextpoint();
    EXPECT_LT(nav().TargetForwardspeed, 0);
}

TEST_F(Driver, NoLevelIsAnError) {
    start();
    for (const int extreme : {-32768, 32767}) {
        values.steeringLevel = extreme;
        values.gasLevel = extreme;
        values.brakeLevel = 32767;
        EXPECT_NO_THROW(task.nextpoint());
    }
}

TEST_F(Driver, TailFirstTurnsTheTargetBehindAndHalvesTheSpeed) {
    start();
    values.joystickY = 6001;
    task.nextpoint();
    expectTarget(3.1415926);
    EXPECT_TRUE(values.reverseDrive);
    EXPECT_DOUBLE_EQ(nav().TargetForwardspeed, 0.6 * 0.325 / 2);
    values.steeringLevel = 0;
    task.nextpoint();
    expectTarget(3.1415926 - kFull);
    values.joystickY = 6000;
    task.nextpoint();
    EXPECT_FALSE(values.reverseDrive);
    expectTarget(kFull);
}

TEST_F(Driver, TailFirstDrivesTheWheelsBackwards) {
    start();
    values.joystickY = 7000;
    task.continue_();
    clock.runUntil(100);
    EXPECT_GT(values.wheelCmdLeft, 0);
    EXPECT_LT(values.wheelCmdRight, 0);
    EXPECT_NEAR(values.wheelCmdLeft, -values.wheelCmdRight, 1);
}

TEST_F(Driver, TheWanderGoesStraightAtTheSpeedOfItsBox) {
    start();
    values.steeringLevel = 0;
    values.gasLevel = 10000;
    values.brakeLevel = 0;
    values.useWanderInput = true;
    task.nextpoint();
    expectTarget(0);
    EXPECT_DOUBLE_EQ(nav().TargetForwardspeed, 0.195);
    EXPECT_TRUE(values.vfhActive);
    EXPECT_EQ(values.workingGas, 5000);
    controls.txtWonderSpeed.setText("7000");
    task.nextpoint();
    EXPECT_DOUBLE_EQ(nav().TargetForwardspeed, 0.6 * (3000 * 0.65 / 10000));
}

TEST_F(Driver, AWanderSpeedThatIsNoWholeNumberIsFatalWhenRead) {
    start();
    for (const char* text : {"fast", "", "5000.5", "1e3", "40000"}) {
        controls.txtWonderSpeed.setText(text);
        values.useWanderInput = false;
        EXPECT_NO_THROW(task.nextpoint()) << text;
        values.useWanderInput = true;
        EXPECT_THROW(task.nextpoint(), ProgramError) << text;
    }
}

TEST_F(Driver, TheAvoidanceSwitchChangesNothing) {
    start();
    task.continue_();
    for (const bool enabled : {true, false}) {
        values.caEnabled = enabled;
        values.gasLevel = 5000;
        clock.runFor(100);
        EXPECT_TRUE(values.vfhActive);
        values.gasLevel = 9500;
        clock.runFor(100);
        EXPECT_FALSE(values.vfhActive);
    }
}

TEST_F(Driver, AStandingRobotStillWritesTheSearchFlagOnEveryTick) {
    start();
    task.continue_();
    values.brakeLevel = 0;
    values.vfhActive = false;
    clock.runFor(100);
    EXPECT_TRUE(values.vfhActive);
}

TEST_F(Driver, ASuspendedTickLeavesTheSearchFlagAlone) {
    start();
    values.vfhActive = false;
    clock.runFor(500);
    EXPECT_FALSE(values.vfhActive);
}

TEST_F(Driver, ATargetDistanceWithinToleranceStopsTheNavigatorForGood) {
    start();
    task.continue_();
    task.targetDistance = 0.1;
    clock.runUntil(200);
    EXPECT_FALSE(nav().running());
    task.targetDistance = 1.0;
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_FALSE(nav().running());
}

TEST_F(Driver, ItsToleranceIsThatOfTheNavigatorsRun) {
    start();
    task.continue_();
    clock.runUntil(1000);
    EXPECT_EQ(nav().toleranceNow(), 0.12);
}

TEST_F(Driver, TaskEndReleasesTheNavigatorToo) {
    start();
    task.continue_();
    task.task_end();
    EXPECT_EQ(task.navigator(), nullptr);
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Driver, TaskEndBeforeRunAndTwicePasses) {
    task.task_end();
    task.task_end();
    clock.runUntil(1000);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Driver, AStuckHoldReplacesTheNavigatorsCommands) {
    AntiStuck antiStuck(clock, values, values, link);
    values.antiStuckEnabled = true;
    antiStuck.run();
    start();
    task.continue_();
    clock.runUntil(300);
    values.motorCurrentLeft = 10;
    clock.runUntil(600);
    ASSERT_TRUE(values.inStuck);
    link.take();
    clock.runUntil(800);
    EXPECT_EQ(link.take(), Lines{"SetDriveVelocities 497 -497 -32768 -32768 -32768 -32768"});
    values.antiStuckEnabled = false;
    clock.runUntil(1000);
    EXPECT_FALSE(values.inStuck);
    clock.runUntil(1100);
    EXPECT_EQ(link.operations().back(), "SetDriveVelocities -497 497 -32768 -32768 -32768 -32768");
}

}  // namespace
}  // namespace quorrin
