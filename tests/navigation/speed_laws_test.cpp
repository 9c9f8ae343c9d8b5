#include "navigation/speed_laws.h"

#include <gtest/gtest.h>

#include "base/program_error.h"

namespace quorrin {
namespace {

SpeedInput farAhead(double headingError) {
    return {headingError, 1.0, 0.4, 0.78, false};
}

TEST(SpeedLaws, OnTheHeadingItGoesAtFullSpeedWithTheLeastGain) {
    const BodySpeed speed = speedLaws(farAhead(0.025));
    EXPECT_EQ(speed.forward, 0.4);
    EXPECT_EQ(speed.turn, 0.3 * 0.025);
}

TEST(SpeedLaws, OffTheHeadingItTurnsWithGainFour) {
    const BodySpeed speed = speedLaws(farAhead(-0.026));
    EXPECT_EQ(speed.forward, 0.4);
    EXPECT_EQ(speed.turn, -4.0 * 0.026);
}

TEST(SpeedLaws, ItSlowsBeyondAQuarterRadian) {
    EXPECT_EQ(speedLaws(farAhead(0.25)).forward, 0.4);
    EXPECT_EQ(speedLaws(farAhead(0.5)).forward, 0.5 * 0.4);
    EXPECT_EQ(speedLaws(farAhead(-2.5)).forward, 0.1 * 0.4);
}

TEST(SpeedLaws, TheTurnIsLimitedToEitherSide) {
    EXPECT_EQ(speedLaws(farAhead(0.2)).turn, 0.78);
    EXPECT_EQ(speedLaws(farAhead(-0.2)).turn, -0.78);
}

TEST(SpeedLaws, ATurnOfExactlyTheLimitBecomesTheLimit) {
    SpeedInput input = farAhead(0.5);
    input.turnLimit = 2.0;
    EXPECT_EQ(speedLaws(input).turn, 2.0);
}

TEST(SpeedLaws, WithoutErrorThereIsNoTurn) {
    SpeedInput input = farAhead(0);
    input.turnLimit = 0;
    EXPECT_EQ(speedLaws(input).turn, 0);
}

TEST(SpeedLaws, NearTheTargetItSlowsInSpeedAndTurn) {
    SpeedInput input = farAhead(0.1);
    input.targetDistance = 0.1;
    const BodySpeed speed = speedLaws(input);
    EXPECT_EQ(speed.forward, 0.5 * 0.4);
    EXPECT_EQ(speed.turn, 2.0 * 0.1);
}

TEST(SpeedLaws, TheGainHasAFloorNearTheTarget) {
    SpeedInput input = farAhead(0.1);
    input.targetDistance = 0.01;
    EXPECT_EQ(speedLaws(input).turn, 0.3 * 0.1);
}

TEST(SpeedLaws, AtExactlyTwoTenthsNothingIsSlowed) {
    SpeedInput input = farAhead(0.1);
    input.targetDistance = 0.2;
    EXPECT_EQ(speedLaws(input).forward, 0.4);
    EXPECT_EQ(speedLaws(input).turn, 4.0 * 0.1);
}

TEST(SpeedLaws, ANonstopRunKeepsItsSpeedToTheEnd) {
    SpeedInput input = farAhead(0.1);
    input.targetDistance = 0.1;
    input.nonstop = true;
    const BodySpeed speed = speedLaws(input);
    EXPECT_EQ(speed.forward, 0.4);
    EXPECT_EQ(speed.turn, 2.0 * 0.1);
}

TEST(SlowedByDensity, TakesTheDensitysShareOff) {
    const BodySpeed speed = speedLaws(farAhead(0.5));
    EXPECT_EQ(slowedByDensity(speed, 0.4, 0, 100), 0.4 * 0.5);
    EXPECT_EQ(slowedByDensity(speed, 0.4, 25, 100), 0.75 * 0.4 * 0.5);
}

TEST(SlowedByDensity, ASaturatedSectorStops) {
    const BodySpeed speed = speedLaws(farAhead(0));
    EXPECT_EQ(slowedByDensity(speed, 0.4, 100, 100), 0);
    EXPECT_EQ(slowedByDensity(speed, 0.4, 900, 100), 0);
}

TEST(SlowedByDensity, ASaturationOfZeroIsAnError) {
    const BodySpeed speed = speedLaws(farAhead(0));
    EXPECT_THROW(slowedByDensity(speed, 0.4, 0, 0), ProgramError);
    EXPECT_THROW(slowedByDensity(speed, 0.4, 5, 0), ProgramError);
}

}  // namespace
}  // namespace quorrin
