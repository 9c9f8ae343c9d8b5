#include "base/number_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "base/program_error.h"

namespace quorrin {
namespace {

TEST(ParseNumber, ReadsDecimalNumbers) {
    EXPECT_EQ(parseNumber("10.4"), 10.4);
    EXPECT_EQ(parseNumber("-3"), -3.0);
    EXPECT_EQ(parseNumber("+3"), 3.0);
    EXPECT_EQ(parseNumber(".5"), 0.5);
    EXPECT_EQ(parseNumber("-.5"), -0.5);
    EXPECT_EQ(parseNumber("5."), 5.0);
    EXPECT_EQ(parseNumber("1e3"), 1000.0);
    EXPECT_EQ(parseNumber("  \t7 "), 7.0);
}

TEST(ParseNumber, RefusesEverythingElse) {
    for (const char* text : {"",    " ",   "-",    "+",   ".",    "abc", "1,5",  "1.2.3", "1 2",   "+-1",
                             "--1", "-+1", "0x10", "inf", "-inf", "nan", "-nan", "1e",    "1e999", "1\n2"})
        EXPECT_FALSE(parseNumber(text).has_value()) << text;
}

TEST(ParseWhole, ReadsASignAndDigitsOnly) {
    EXPECT_EQ(parseWhole("5000"), 5000);
    EXPECT_EQ(parseWhole(" -12 "), -12);
    EXPECT_EQ(parseWhole("+12"), 12);
    EXPECT_EQ(parseWhole("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    for (const char* text : {"", "+", "-", "+-1", "1.0", "1e3", "12a", "9223372036854775808", "0x1"})
        EXPECT_FALSE(parseWhole(text).has_value()) << text;
}

TEST(NumberText, IsAProgramErrorWhereANumberIsNeeded) {
    EXPECT_DOUBLE_EQ(toDouble("2.5"), 2.5);
    EXPECT_THROW(toDouble("fast"), ProgramError);
    EXPECT_THROW(wholeToInteger(""), ProgramError);
    EXPECT_THROW(numberToInteger("fast"), ProgramError);
    EXPECT_THROW(numberToLong("fast"), ProgramError);
}

TEST(NumberText, RoundsHalfToEvenIntoAnInteger) {
    EXPECT_EQ(numberToInteger("2.5"), 2);
    EXPECT_EQ(numberToInteger("3.5"), 4);
    EXPECT_EQ(numberToInteger("-2.5"), -2);
    EXPECT_EQ(numberToInteger("32767.4"), 32767);
    EXPECT_THROW(numberToInteger("32767.5"), ProgramError);
    EXPECT_EQ(numberToLong("2147483647"), 2147483647);
    EXPECT_THROW(numberToLong("2147483648"), ProgramError);
}

TEST(NumberText, ReadsAWholeIntegerWithoutRounding) {
    EXPECT_EQ(wholeToInteger("-32768"), -32768);
    EXPECT_THROW(wholeToInteger("5.0"), ProgramError);
    EXPECT_THROW(wholeToInteger("32768"), ProgramError);
}

TEST(FormatFixed, WritesThatManyDecimalsRoundedHalfToEven) {
    EXPECT_EQ(formatFixed(1.5, 3), "1.500");
    EXPECT_EQ(formatFixed(0.125, 2), "0.12");
    EXPECT_EQ(formatFixed(0.375, 2), "0.38");
    EXPECT_EQ(formatFixed(-0.125, 2), "-0.12");
    EXPECT_EQ(formatFixed(2.5, 0), "2");
    EXPECT_EQ(formatFixed(1234567.0, 2), "1234567.00");
}

TEST(FormatShortest, WritesWholeNumbersWithoutAPointOrExponent) {
    EXPECT_EQ(formatShortest(0), "0");
    EXPECT_EQ(formatShortest(-0.0), "0");
    EXPECT_EQ(formatShortest(5), "5");
    EXPECT_EQ(formatShortest(-32768), "-32768");
    EXPECT_EQ(formatShortest(100000), "100000");
    EXPECT_EQ(formatShortest(1000000000000.0), "1000000000000");
}

TEST(FormatShortest, WritesFractionsAsShortAsTheyCanBe) {
    EXPECT_EQ(formatShortest(0.1), "0.1");
    EXPECT_EQ(formatShortest(0.0001), "0.0001");
    EXPECT_EQ(formatShortest(-1.25), "-1.25");
}

TEST(FormatShortest, ReadsBackToTheSameValue) {
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> mantissa(-2, 2);
    for (int exponent = -300; exponent <= 300; ++exponent) {
        const double value = std::ldexp(mantissa(random), exponent);
        ASSERT_EQ(parseNumber(formatShortest(value)), value) << formatShortest(value);
    }
}

TEST(BooleanText, IsTrueOrFalse) {
    EXPECT_EQ(booleanText(true), "True");
    EXPECT_EQ(booleanText(false), "False");
}

}  // namespace
}  // namespace quorrin
