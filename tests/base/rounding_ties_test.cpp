#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "base/program_error.h"
#include "base/rounding.h"

namespace quorrin {
namespace {

TEST(RoundHalfEven, TakesTheEvenNeighbourOfATie) {
    EXPECT_EQ(roundHalfEven(2.5), 2.0);
    EXPECT_EQ(roundHalfEven(3.5), 4.0);
    EXPECT_EQ(roundHalfEven(-0.5), 0.0);
    EXPECT_EQ(roundHalfEven(-1.5), -2.0);
    EXPECT_EQ(roundHalfEven(0.5), 0.0);
}

TEST(RoundHalfEven, KeepsTheSignOfZeroAsTheLibraryDoes) {
    EXPECT_TRUE(std::signbit(roundHalfEven(-0.3)));
    EXPECT_FALSE(std::signbit(roundHalfEven(0.3)));
}

TEST(RoundHalfEven, EqualsTheLibraryOverAllMagnitudes) {
    std::mt19937_64 random(7);
    for (int exponent = -20; exponent <= 70; ++exponent) {
        std::uniform_real_distribution<double> mantissa(-2.0, 2.0);
        for (int i = 0; i < 2000; ++i) {
            const double value = std::ldexp(mantissa(random), exponent);
            ASSERT_EQ(roundHalfEven(value), std::nearbyint(value)) << value;
            const double half = std::trunc(value) + 0.5;
            ASSERT_EQ(roundHalfEven(half), std::nearbyint(half)) << half;
        }
    }
}

TEST(RoundHalfEven, LeavesInfinitiesAndNaNAlone) {
    EXPECT_EQ(roundHalfEven(std::numeric_limits<double>::infinity()),
              std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(roundHalfEven(std::numeric_limits<double>::quiet_NaN())));
}

TEST(RoundToInteger, AcceptsWhatRoundsIntoItsRangeAndNothingElse) {
    EXPECT_EQ(roundToInteger(32767.4), 32767);
    EXPECT_EQ(roundToInteger(-32768.5), -32768);
    EXPECT_THROW(roundToInteger(32767.5), ProgramError);
    EXPECT_THROW(roundToInteger(std::numeric_limits<double>::quiet_NaN()), ProgramError);
}

}  // namespace
}  // namespace quorrin
