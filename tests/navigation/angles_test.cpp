#include <gtest/gtest.h>

#include <cmath>

#include "base/program_error.h"
#include "navigation/math/angles.h"

namespace quorrin {
namespace {

double wrapped(double angle) {
    wrapPi(angle);
    return angle;
}

TEST(DegToRad, UsesTheShortPi) {
    EXPECT_EQ(degToRad(180.0), 3.1415926);
    EXPECT_EQ(degToRad(-45.0), -45.0 * 3.1415926 / 180.0);
}

TEST(DegToRad, LeavesItsArgumentUnchanged) {
    double degrees = 90.0;
    degToRad(degrees);
    EXPECT_EQ(degrees, 90.0);
}

TEST(BearingBetween, OfAPointToItselfIsMinusAHalfPi) {
    EXPECT_EQ(bearingBetween(1.5, -2.0, 1.5, -2.0), -1.5707963);
}

TEST(BearingBetween, StraightUpAndDownAreTheHalfPiLiterals) {
    EXPECT_EQ(bearingBetween(0, 0, 0, 3), 1.5707963);
    EXPECT_EQ(bearingBetween(0, 0, 0, -3), -1.5707963);
}

TEST(BearingBetween, OnTheRightIsThePlainArctangent) {
    EXPECT_EQ(bearingBetween(1, 1, 3, 2), std::atan(0.5));
    EXPECT_EQ(bearingBetween(1, 1, 3, 0), std::atan(-0.5));
}

TEST(BearingBetween, OnTheLeftBelowOrLevelSubtractsPi) {
    EXPECT_EQ(bearingBetween(0, 0, -2, -1), std::atan(0.5) - 3.1415926);
    EXPECT_EQ(bearingBetween(0, 0, -2, 0), -3.1415926);
}

TEST(BearingBetween, OnTheLeftAboveAddsPi) {
    EXPECT_EQ(bearingBetween(0, 0, -2, 1), std::atan(-0.5) + 3.1415926);
}

TEST(BearingBetween, ASlopeThatOverflowsIsAnError) {
    EXPECT_THROW(bearingBetween(0, 0, 1e-300, 1e300), ProgramError);
}

TEST(WrapPi, OfTenIsStillOutOfRange) {
    EXPECT_NEAR(wrapped(10), 3.7168148, 1e-12);
}

TEST(WrapPi, LeavesBothEndsUnchanged) {
    EXPECT_EQ(wrapped(3.1415926), 3.1415926);
    EXPECT_EQ(wrapped(-3.1415926), -3.1415926);
}

TEST(WrapPi, CorrectsOnceToEitherSide) {
    EXPECT_EQ(wrapped(3.2), 3.2 - 6.2831852);
    EXPECT_EQ(wrapped(-3.2), -3.2 + 6.2831852);
    EXPECT_EQ(wrapped(-10), -10 + 6.2831852);
}

TEST(ReduceTurns, OfMinusSevenLeavesTheRest) {
    EXPECT_NEAR(reduceTurns(-7), -0.7168148, 1e-12);
}

TEST(ReduceTurns, TakesOneTurnLessWhereRoundingWentUp) {
    EXPECT_EQ(reduceTurns(5.0), 5.0);
    EXPECT_NEAR(reduceTurns(11.0), 11.0 - 6.2831852, 1e-12);
    EXPECT_NEAR(reduceTurns(-11.0), -11.0 + 6.2831852, 1e-12);
}

TEST(ReduceTurns, OfZeroAndOfWholeTurnsIsZero) {
    EXPECT_EQ(reduceTurns(0), 0);
    EXPECT_EQ(reduceTurns(2 * 6.2831852), 0);
}

TEST(ReduceTurns, MoreTurnsThanAnIntegerHoldsIsAnError) {
    EXPECT_THROW(reduceTurns(6.2831852 * 32769), ProgramError);
}

}  // namespace
}  // namespace quorrin
