#include "robot/drives.h"

#include <gtest/gtest.h>

#include <cmath>

#include "robot/wheels.h"

namespace quorrin {
namespace {

class DrivesTest : public testing::Test {
  protected:
    DrivesTest() { drives.connect(0); }

    // Ideal wheels for `ms`; `gateway` speaks every 100 ms.
    void run(std::int64_t ms, bool gateway = true) {
        for (const std::int64_t until = now + ms; now < until;) {
            now += 20;
            if (gateway && now % 100 == 0) drives.heard(now);
            const WheelTargets targets = drives.step(now, 0.02, counts);
            for (std::size_t side = 0; side < 2; ++side) {
                speed[side] = targets.speed_mps[side];
                counts[side] += mountingSign(side) * speed[side] * 0.02 * kCountsPerMetre;
            }
        }
    }
    double metres(int countsPerSecond) const { return countsPerSecond / kCountsPerMetre; }

    Drives drives;
    std::int64_t now = 0;
    std::array<double, 2> counts{100, 100};
    std::array<double, 2> speed{};
};

TEST_F(DrivesTest, ANegativeLeftAndAPositiveRightCountRollForward) {
    drives.setVelocity(0, -400, now);
    drives.setVelocity(1, 400, now);
    run(1000);
    EXPECT_NEAR(speed[0], metres(400), 1e-9);
    EXPECT_NEAR(speed[1], metres(400), 1e-9);
}

TEST_F(DrivesTest, SpeedRisesNoFasterThanTheAcceleration) {
    drives.setVelocity(1, 1000, now);
    run(100);
    EXPECT_NEAR(speed[1], 0.08, 1e-9);
}

TEST_F(DrivesTest, AVelocityCommandRunsOutAfterTwoSeconds) {
    drives.setVelocity(0, -400, now);
    drives.setVelocity(1, 400, now);
    run(1980);
    EXPECT_NEAR(speed[1], metres(400), 1e-9);
    run(400);
    EXPECT_EQ(speed[0], 0);
    EXPECT_EQ(speed[1], 0);
    EXPECT_STREQ(drives.modeText(0), "velocity");
}

TEST_F(DrivesTest, ARenewedCommandGoesOn) {
    for (int i = 0; i < 50; ++i) {
        drives.setVelocity(1, 300, now);
        run(100);
    }
    EXPECT_NEAR(speed[1], metres(300), 1e-9);
}

TEST_F(DrivesTest, TheWheelsStandWithinHalfASecondOfTheGatewaysLastWord) {
    drives.setVelocity(0, -1500, now);
    drives.setVelocity(1, 1500, now);
    run(1000);
    EXPECT_GT(speed[1], 0.45);
    run(500, false);
    EXPECT_EQ(speed[0], 0);
    EXPECT_EQ(speed[1], 0);
    EXPECT_STREQ(drives.modeText(1), "suspended");
}

TEST_F(DrivesTest, AGatewayThatSpeaksAgainDoesNotStartThemButACommandDoes) {
    drives.setVelocity(1, 300, now);
    run(1000, false);
    run(500);
    EXPECT_EQ(speed[1], 0);
    drives.setVelocity(1, 300, now);
    run(500);
    EXPECT_NEAR(speed[1], metres(300), 1e-9);
}

TEST_F(DrivesTest, ADisconnectSuspendsBothAtOnce) {
    drives.setVelocity(0, -300, now);
    drives.disconnect();
    EXPECT_TRUE(drives.suspended(0));
    EXPECT_TRUE(drives.suspended(1));
}

TEST_F(DrivesTest, ASuspendedChannelBrakesAloneAndTheNextCommandTakesItUp) {
    drives.setVelocity(0, -400, now);
    drives.setVelocity(1, 400, now);
    run(1000);
    drives.suspend(0);
    run(100);
    EXPECT_EQ(speed[0], 0);
    EXPECT_NEAR(speed[1], metres(400), 1e-9);
    drives.setVelocity(0, -400, now);
    EXPECT_FALSE(drives.suspended(0));
}

TEST_F(DrivesTest, AConnectionBringsVelocityModeWhateverWasBefore) {
    drives.setMode(0, 1);
    drives.setMode(1, 1);
    drives.disconnect();
    drives.connect(now);
    EXPECT_STREQ(drives.modeText(0), "velocity");
    EXPECT_STREQ(drives.modeText(1), "velocity");
}

TEST_F(DrivesTest, ACommandOfTheOtherModeIsIgnored) {
    drives.setMode(0, 1);
    drives.setVelocity(0, -400, now);
    drives.moveTo(1, 500, 1000, counts[1], now);
    run(500);
    EXPECT_EQ(speed[0], 0);
    EXPECT_EQ(speed[1], 0);
}

TEST_F(DrivesTest, AnUnknownModeChangesNothing) {
    drives.setMode(0, 7);
    EXPECT_EQ(drives.mode(0), DriveMode::velocity);
}

TEST_F(DrivesTest, APositionIsReachedInAboutItsTimeAndHeld) {
    for (const int channel : {0, 1}) {
        drives.setMode(channel, 1);
        drives.moveTo(channel, 700, 2000, 100, now);
    }
    run(1500);
    EXPECT_GT(counts[0], 450);
    EXPECT_LT(counts[0], 690);
    run(1500);
    EXPECT_NEAR(counts[0], 700, 2);
    EXPECT_NEAR(counts[1], 700, 2);
    EXPECT_EQ(speed[0], 0);
}

TEST_F(DrivesTest, APositionBeyondTheWrapIsReachedTheShortWay) {
    counts = {32700, 100};
    drives.setMode(0, 1);
    drives.moveTo(0, 133, 1000, counts[0], now);
    drives.setMode(1, 1);
    drives.moveTo(1, -100, 1000, counts[1], now);
    run(2500);
    EXPECT_NEAR(counts[0], 32767 + 133, 2);
    EXPECT_NEAR(counts[1], -100, 2);
}

TEST_F(DrivesTest, SpeedAndTurnLimitsStandWhateverIsCommanded) {
    drives.setVelocity(0, -30000, now);
    drives.setVelocity(1, 30000, now);
    run(1500);
    EXPECT_NEAR(speed[1], 0.5, 1e-9);
    drives.setVelocity(0, 30000, now);
    run(1900);
    EXPECT_NEAR((speed[1] - speed[0]) / kWheelBase_m, 2.0, 1e-9);
}

}  // namespace
}  // namespace quorrin
