#include <gtest/gtest.h>

#include <cmath>

#include "base/program_error.h"
#include "navigation/math/wheels.h"
#include "navigation/speed_p2p_vfh.h"
#include "support/navigation_station.h"

namespace quorrin {
namespace {

using Lines = std::vector<std::string>;

// A navigator that stands on its target and is to end at a heading of one radian.
class FinalTurn : public ::testing::Test, protected NavigationStation {
  protected:
    FinalTurn() {
        task.finalPosture = true;
        task.TargetAngel = 1.0;
        task.PathFollowComplete = [this] { ++arrivals; };
        values.encoderLeft = 100;
        values.encoderRight = 32700;
        task.run();
        link.take();
    }
    void tick() { task.RunTimer_Timer(100); }
    speedP2PVFH task{clock, values, controls, link};
    int arrivals = 0;
};

TEST_F(FinalTurn, AHeadingAlreadyReachedFinishesWithoutASpin) {
    values.robotTheta = 0.96;
    tick();
    EXPECT_EQ(arrivals, 1);
    EXPECT_FALSE(task.running());
    EXPECT_EQ(values.finishCount, 0);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(FinalTurn, ASpinGoesByPositionForBothWheels) {
    tick();
    EXPECT_EQ(link.take(), (Lines{"SetDriveControlMode 0 1", "SetDriveControlMode 1 1",
                                  "MoveDrivesTimed 389 222 -32768 -32768 -32768 -32768 1300"}));
    EXPECT_EQ(task.Status, "turn");
    EXPECT_FALSE(task.turnDoneFlag());
    ASSERT_NE(task.turnTimer(), nullptr);
    EXPECT_EQ(task.turnTimer()->interval(), 1300);
    EXPECT_EQ(task.turnTimer()->resolution(), 10);
    EXPECT_FALSE(task.turnTimer()->periodic());
    EXPECT_TRUE(task.turnTimer()->enabled());
}

TEST_F(FinalTurn, AnInhibitKeepsTheSpinFromTheRobotOnly) {
    values.motionInhibit = true;
    tick();
    EXPECT_EQ(link.take(), (Lines{"SetDriveControlMode 0 1", "SetDriveControlMode 1 1"}));
    EXPECT_EQ(task.Status, "turn");
    EXPECT_NE(task.turnTimer(), nullptr);
}

TEST_F(FinalTurn, WaitsWhileASpinIsUnderWay) {
    clock.runUntil(1300);
    EXPECT_EQ(link.count("MoveDrivesTimed"), 1U);
    EXPECT_FALSE(task.turnDoneFlag());
}

TEST_F(FinalTurn, TheTurnTimerReleasesItselfAndALaterTickFinishes) {
    clock.runUntil(100);  // spins from 100 to 1400
    clock.runUntil(1399);
    EXPECT_FALSE(task.turnDoneFlag());
    EXPECT_NE(task.turnTimer(), nullptr);
    clock.runUntil(1400);
    EXPECT_TRUE(task.turnDoneFlag());
    EXPECT_EQ(task.turnTimer(), nullptr);
    values.robotTheta = 1.04;
    clock.runUntil(1500);
    EXPECT_EQ(arrivals, 1);
    EXPECT_FALSE(task.running());
    EXPECT_EQ(link.count("MoveDrivesTimed"), 1U);
}

TEST_F(FinalTurn, AHeadingReachedInMidSpinFinishesAtOnce) {
    clock.runUntil(100);
    values.robotTheta = 0.96;
    clock.runUntil(200);
    EXPECT_EQ(arrivals, 1);
    EXPECT_FALSE(task.turnDoneFlag());
}

TEST_F(FinalTurn, ASpinThatFellShortIsRepeated) {
    clock.runUntil(100);
    link.take();
    values.robotTheta = 0.8;
    clock.runUntil(1500);
    EXPECT_EQ(link.take(), (Lines{"SetDriveControlMode 0 1", "SetDriveControlMode 1 1",
                                  "MoveDrivesTimed 158 32758 -32768 -32768 -32768 -32768 660"}));
    EXPECT_FALSE(task.turnDoneFlag());
    EXPECT_EQ(arrivals, 0);
}

TEST_F(FinalTurn, TheTargetHeadingIsWrappedInPlace) {
    task.TargetAngel = 4.0;
    tick();
    EXPECT_EQ(task.TargetAngel, 4.0 - 6.2831852);
    EXPECT_EQ(task.headingError(), 4.0 - 6.2831852);
}

TEST_F(FinalTurn, ItStaysInTheTurnThoughTheTargetMoves) {
    tick();
    task.TargetX = 3;
    link.take();
    tick();
    EXPECT_TRUE(link.operations().empty());
    EXPECT_EQ(task.Status, "turn");
}

TEST_F(FinalTurn, OnlyTheNextRunRestoresVelocityMode) {
    tick();
    link.take();
    task.run();
    EXPECT_EQ(link.take(), (Lines{"SetDriveControlMode 0 2", "SetDriveControlMode 1 2"}));
    EXPECT_EQ(task.Status, "run");
}

TEST_F(FinalTurn, TaskEndInMidSpinReleasesBothTimers) {
    clock.runUntil(100);
    task.task_end();
    clock.runUntil(5000);
    EXPECT_EQ(task.turnTimer(), nullptr);
    EXPECT_FALSE(task.turnDoneFlag());
}

TEST_F(FinalTurn, ANonstopRunIgnoresThePosture) {
    task.nonstop = true;
    tick();
    EXPECT_EQ(arrivals, 1);
    EXPECT_TRUE(link.operations().empty());
}

}  // namespace
}  // namespace quorrin
