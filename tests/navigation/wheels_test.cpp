#include <gtest/gtest.h>

#include "base/program_error.h"
#include "navigation/math/wheels.h"

namespace quorrin {
namespace {

TEST(RadPerSecToCounts, RoundsToWholeCounts) {
    EXPECT_EQ(radPerSecToCounts(0), 0);
    EXPECT_EQ(radPerSecToCounts(6.2831852), 1200);
    EXPECT_EQ(radPerSecToCounts(-6.2831852), -1200);
    EXPECT_EQ(radPerSecToCounts(1.0), 191);  // 190.986
}

TEST(RadPerSecToCounts, ARateWhoseCountDoesNotFitIsAnError) {
    EXPECT_EQ(radPerSecToCounts(171.5), 32754);
    EXPECT_THROW(radPerSecToCounts(171.6), ProgramError);
    EXPECT_THROW(radPerSecToCounts(-171.6), ProgramError);
}

TEST(WheelRates, OfAStraightRunAreEqual) {
    EXPECT_DOUBLE_EQ(leftWheelRate(0.3, 0), 4.0);
    EXPECT_DOUBLE_EQ(rightWheelRate(0.3, 0), 4.0);
}

TEST(WheelRates, OfALeftTurnRunTheRightWheelFaster) {
    EXPECT_DOUBLE_EQ(leftWheelRate(0, 1.5), -2.27);
    EXPECT_DOUBLE_EQ(rightWheelRate(0, 1.5), 2.27);
}

TEST(SpinTarget, AddsTheArcInCounts) {
    // one radian is 0.1135 m of arc: 289.0 counts
    EXPECT_EQ(spinTarget(0, 1.0), 289);
    EXPECT_EQ(spinTarget(1000, -1.0), 711);
}

TEST(SpinTarget, IsReducedByTheEncodersModulusKeepingTheSign) {
    EXPECT_EQ(spinTarget(32700, 1.0), 222);
    EXPECT_EQ(spinTarget(-32700, -1.0), -222);
    EXPECT_EQ(spinTarget(32767, 0.0), 0);
}

TEST(SpinTarget, AChangeThatDoesNotFitIsAnError) {
    EXPECT_THROW(spinTarget(0, 1e8), ProgramError);
}

TEST(EncoderChange, FromOneSampleToTheNext) {
    EXPECT_EQ(encoderChange(150, 100), 50);
    EXPECT_EQ(encoderChange(100, 150), -50);
    EXPECT_EQ(encoderChange(700, 100), 600);
    EXPECT_EQ(encoderChange(100, 700), -600);
}

TEST(EncoderChange, ReadsABigJumpAsAWrap) {
    EXPECT_EQ(encoderChange(50, 32700), 117);
    EXPECT_EQ(encoderChange(32700, 50), -117);
    EXPECT_EQ(encoderChange(701, 100), 601 - 32767);
    EXPECT_EQ(encoderChange(100, 701), 32767 - 601);
}

TEST(CountsToMetres, AWheelTurnIsItsCircumference) {
    EXPECT_EQ(countsToMetres(1200), 6.2831852 * 0.075);
    EXPECT_EQ(countsToMetres(-1200), -6.2831852 * 0.075);
}

}  // namespace
}  // namespace quorrin
