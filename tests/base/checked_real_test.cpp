#include <gtest/gtest.h>

#include <limits>

#include "base/checked_real.h"
#include "base/program_error.h"

namespace quorrin {
namespace {

TEST(CheckedReal, AQuotientByZeroIsAnError) {
    EXPECT_THROW(quotient(1.0, 0.0, "here"), ProgramError);
    EXPECT_THROW(quotient(0.0, 0.0, "here"), ProgramError);
    EXPECT_THROW(quotient(1.0, -0.0, "here"), ProgramError);
    EXPECT_EQ(quotient(1.0, 4.0, "here"), 0.25);
}

TEST(CheckedReal, AnOverflowIsAnErrorThatSaysWhere) {
    try {
        quotient(1e300, 1e-300, "the wheel");
        FAIL() << "no error";
    } catch (const ProgramError& error) {
        EXPECT_STREQ(error.what(), "floating-point fault: the wheel");
    }
    EXPECT_THROW(finite(std::numeric_limits<double>::infinity(), "here"), ProgramError);
    EXPECT_THROW(finite(std::numeric_limits<double>::quiet_NaN(), "here"), ProgramError);
}

TEST(CheckedReal, ARootOfANegativeIsAnError) {
    EXPECT_THROW(squareRoot(-1e-300, "here"), ProgramError);
    EXPECT_EQ(squareRoot(0.0, "here"), 0.0);
    EXPECT_EQ(squareRoot(2.25, "here"), 1.5);
}

TEST(CheckedReal, SignOfZeroIsZero) {
    EXPECT_EQ(signOf(-3.0), -1.0);
    EXPECT_EQ(signOf(0.0), 0.0);
    EXPECT_EQ(signOf(3.0), 1.0);
}

}  // namespace
}  // namespace quorrin
