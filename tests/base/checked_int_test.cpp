#include "base/checked_int.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "base/program_error.h"

namespace quorrin {
namespace {

TEST(CheckedInt, HoldsItsWholeRange) {
    EXPECT_EQ(Integer(-32768), -32768);
    EXPECT_EQ(Integer(32767), 32767);
    EXPECT_EQ(Long(-2147483648LL), -2147483648LL);
    EXPECT_EQ(Long(2147483647), 2147483647);
    EXPECT_EQ(Byte(0), 0);
    EXPECT_EQ(Byte(255), 255);
    EXPECT_EQ(Integer(), 0);
}

TEST(CheckedInt, RefusesAValueThatDoesNotFit) {
    EXPECT_THROW(Integer(32768), ProgramError);
    EXPECT_THROW(Integer(-32769), ProgramError);
    EXPECT_THROW(Long(2147483648LL), ProgramError);
    EXPECT_THROW(Long(-2147483649LL), ProgramError);
    EXPECT_THROW(Byte(256), ProgramError);
    EXPECT_THROW(Byte(-1), ProgramError);
}

TEST(CheckedInt, RefusesUnsignedValuesThatWouldTurnNegative) {
    EXPECT_THROW(Integer{std::numeric_limits<std::uint64_t>::max()}, ProgramError);
    EXPECT_THROW(Long{std::numeric_limits<std::uint32_t>::max()}, ProgramError);
    EXPECT_EQ(Long(std::size_t{70000}), 70000);
}

TEST(CheckedInt, TellsWhichValueDidNotFitWhichType) {
    try {
        Integer(40000);
        FAIL();
    } catch (const ProgramError& error) {
        EXPECT_STREQ(error.what(), "value 40000 does not fit Integer");
    }
}

TEST(CheckedInt, ChecksSumsDifferencesAndProducts) {
    const Integer big = 32767;
    const Integer small = -32768;
    EXPECT_EQ(big + small, -1);
    EXPECT_THROW(big + 1, ProgramError);
    EXPECT_THROW(1 + big, ProgramError);
    EXPECT_THROW(small - 1, ProgramError);
    EXPECT_THROW(-1 - big - 1, ProgramError);
    EXPECT_THROW(big * 2, ProgramError);
    EXPECT_THROW(2 * big, ProgramError);
    EXPECT_THROW(Integer(256) * Integer(128), ProgramError);
    EXPECT_EQ(Integer(181) * Integer(181), 32761);
}

TEST(CheckedInt, ChecksEachStepOfASumAndNotOnlyItsEnd) {
    const Integer value = 32000;
    EXPECT_THROW(value + 1000 - 1000, ProgramError);
    EXPECT_EQ(value + (1000 - 1000), 32000);
}

TEST(CheckedInt, TakesAnIntOperandIntoItsOwnType) {
    EXPECT_THROW(Integer(-1) + 32768, ProgramError);
    EXPECT_EQ(Long(-1) + 32768, 32767);
}

TEST(CheckedInt, ChecksStepwiseChanges) {
    Integer value = 32766;
    EXPECT_EQ(++value, 32767);
    EXPECT_THROW(++value, ProgramError);
    EXPECT_EQ(value, 32767);
    EXPECT_THROW(value += 1, ProgramError);
    value -= 32767;
    EXPECT_EQ(value, 0);
    Byte byte = 0;
    EXPECT_THROW(--byte, ProgramError);
    EXPECT_EQ(byte, 0);
}

TEST(CheckedInt, RefusesTheNegativeOfTheLowestValue) {
    EXPECT_EQ(-Integer(32767), -32767);
    EXPECT_THROW(-Integer(-32768), ProgramError);
}

TEST(CheckedInt, DropsTheFractionOfAWholeQuotient) {
    EXPECT_EQ(Integer(7) / Integer(2), 3);
    EXPECT_EQ(Integer(-7) / 2, -3);
    EXPECT_EQ(Integer(7) % 4, 3);
    EXPECT_EQ(Integer(-7) % 4, -3);
}

TEST(CheckedInt, RefusesToDivideByZeroOrOutOfItsRange) {
    EXPECT_THROW(Integer(1) / Integer(0), ProgramError);
    EXPECT_THROW(Integer(1) / 0, ProgramError);
    EXPECT_THROW(Integer(1) % 0, ProgramError);
    EXPECT_THROW(Integer(-32768) / -1, ProgramError);
}

TEST(CheckedInt, DividesByADoubleAsADouble) {
    EXPECT_DOUBLE_EQ(Integer(7) / 2.0, 3.5);
    EXPECT_DOUBLE_EQ(7.0 / Integer(2), 3.5);
}

TEST(CheckedInt, IsTakenFromOneWidthToAnotherOnlyOnPurposeAndChecked) {
    EXPECT_EQ(Long(Integer(-5)), -5);
    EXPECT_EQ(Integer(Long(32767)), 32767);
    EXPECT_THROW(Integer(Long(32768)), ProgramError);
    EXPECT_THROW(Byte(Integer(-1)), ProgramError);
    static_assert(!std::is_convertible_v<double, Integer>);
    static_assert(!std::is_constructible_v<Integer, double>);
    static_assert(!std::is_constructible_v<Integer, bool>);
}

TEST(CheckedInt, KeepsItsOldValueWhenANewOneDoesNotFit) {
    Integer value = 5;
    EXPECT_THROW(value = 40000, ProgramError);
    EXPECT_EQ(value, 5);
}

}  // namespace
}  // namespace quorrin
