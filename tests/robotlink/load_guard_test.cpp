#include "robotlink/load_guard.h"

#include <gtest/gtest.h>

#include "support/fake_link.h"
#include "support/intake_form.h"

namespace quorrin {
namespace {

constexpr Colour kRed = 255;
constexpr Colour kGreen = 49152;

class LoadGuard : public ::testing::Test {
  protected:
    void guard(double left_A, double right_A, int frames = 1) {
        sensors.motorCurrentLeft = left_A;
        sensors.motorCurrentRight = right_A;
        for (int i = 0; i < frames; ++i) guardDriveLoad(sensors, gui, robot);
    }
    // One frame that leaves the heats where they are.
    void guardAtHeat(double left, double right) {
        sensors.motorHeatLeft = left;
        sensors.motorHeatRight = right;
        guard(0.6, 0.6);
    }
    VirtualClock clock;
    IntakeForm gui{clock};
    FakeLink robot;
    SensorValues sensors;
};

TEST_F(LoadGuard, HeatsByThreeTimesTheExcessCurrent) {
    EXPECT_DOUBLE_EQ(nextMotorHeat(10, 1.6), 13);
    EXPECT_DOUBLE_EQ(nextMotorHeat(0, 0.7), (0.7 - 0.6) * 3);
}

TEST_F(LoadGuard, CoolsByHalfTheMarginAndNotBelowZero) {
    EXPECT_DOUBLE_EQ(nextMotorHeat(10, 0.1), 9.75);
    EXPECT_DOUBLE_EQ(nextMotorHeat(10, 0.6), 10);
    EXPECT_DOUBLE_EQ(nextMotorHeat(0.2, 0.1), 0);
    EXPECT_DOUBLE_EQ(nextMotorHeat(0.25, 0.1), 0);
    EXPECT_DOUBLE_EQ(nextMotorHeat(10, -1.4), 9);
}

TEST_F(LoadGuard, InhibitsWhenAHeatOf90IsPassedAfterThirtyFramesAt1Point6Ampere) {
    guard(1.6001, 1.6001, 29);
    EXPECT_FALSE(sensors.motionInhibit);
    guard(1.6001, 1.6001);
    EXPECT_TRUE(sensors.motionInhibit);
    EXPECT_EQ(robot.operations(), (std::vector<std::string>{"SuspendDrive 0", "SuspendDrive 1"}));
}

TEST_F(LoadGuard, DoesNotInhibitAtAHeatOfExactly90) {
    guardAtHeat(90, 90);
    EXPECT_FALSE(sensors.motionInhibit);
    EXPECT_TRUE(robot.operations().empty());
    guardAtHeat(90.001, 0);
    EXPECT_TRUE(sensors.motionInhibit);
}

TEST_F(LoadGuard, IsTrippedByEitherSide) {
    guardAtHeat(0, 91);
    EXPECT_TRUE(sensors.motionInhibit);
}

TEST_F(LoadGuard, StopsAgainOnEveryHotFrame) {
    guardAtHeat(95, 0);
    guard(0.6, 0.6, 2);
    EXPECT_EQ(robot.count("SuspendDrive"), 6U);
}

TEST_F(LoadGuard, FallsByAQuarterAFrameAndReleasesOnlyBelow25) {
    guardAtHeat(91, 0);
    guard(0.1, 0.1, 4 * (91 - 25));
    EXPECT_DOUBLE_EQ(sensors.motorHeatLeft, 25);
    EXPECT_TRUE(sensors.motionInhibit);
    guard(0.1, 0.1);
    EXPECT_DOUBLE_EQ(sensors.motorHeatLeft, 24.75);
    EXPECT_FALSE(sensors.motionInhibit);
}

TEST_F(LoadGuard, ReleasesOnlyWhenBothSidesAreBelow25) {
    sensors.motionInhibit = true;
    guardAtHeat(24, 25);
    EXPECT_TRUE(sensors.motionInhibit);
    guardAtHeat(24, 24);
    EXPECT_FALSE(sensors.motionInhibit);
}

TEST_F(LoadGuard, KeepsAFreeDriveFreeBetweenTheLimits) {
    guardAtHeat(60, 60);
    EXPECT_FALSE(sensors.motionInhibit);
}

TEST_F(LoadGuard, ShowsEachDriveOnItsOwnLamp) {
    guardAtHeat(91, 24);
    EXPECT_EQ(gui.lamp(5), kRed);
    EXPECT_EQ(gui.lamp(6), kGreen);
    guardAtHeat(24, 91);
    EXPECT_EQ(gui.lamp(5), kGreen);
    EXPECT_EQ(gui.lamp(6), kRed);
}

TEST_F(LoadGuard, LeavesALampAloneBetweenTheLimits) {
    guardAtHeat(91, 24);
    guardAtHeat(90, 25);
    EXPECT_EQ(gui.lamp(5), kRed);
    EXPECT_EQ(gui.lamp(6), kGreen);
    guardAtHeat(25, 90);
    EXPECT_EQ(gui.lamp(5), kRed);
    EXPECT_EQ(gui.lamp(6), kGreen);
}

TEST_F(LoadGuard, IntegratesEachSideByItsOwnCurrent) {
    guard(1.6, 2.6, 2);
    EXPECT_DOUBLE_EQ(sensors.motorHeatLeft, 6);
    EXPECT_DOUBLE_EQ(sensors.motorHeatRight, 12);
}

}  // namespace
}  // namespace quorrin
