#include "base/json_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace quorrin {
namespace {

std::string text(std::string_view value) {
    std::string out;
    appendText(out, value);
    return out;
}

std::string number(double value) {
    std::string out;
    appendDouble(out, value);
    return out;
}

TEST(JsonText, DoublesPrintAsTheShortestTextThatReadsBack) {
    EXPECT_EQ(number(0.1), "0.1");
    EXPECT_EQ(number(1e-7), "1e-07");
    EXPECT_EQ(number(-2.5), "-2.5");
    EXPECT_EQ(number(1.0 / 3), "0.3333333333333333");
    for (const double value : {0.1 + 0.2, 1e300 / 7, -3.1415926, 5e-324, 123456789.125}) {
        EXPECT_EQ(std::strtod(number(value).c_str(), nullptr), value);
    }
}

TEST(JsonText, WholeDoublesPrintWithoutAPoint) {
    EXPECT_EQ(number(0), "0");
    EXPECT_EQ(number(5), "5");
    EXPECT_EQ(number(-120), "-120");
}

TEST(JsonText, WhatIsNoNumberPrintsNull) {
    EXPECT_EQ(number(std::nan("")), "null");
    EXPECT_EQ(number(std::numeric_limits<double>::infinity()), "null");
}

TEST(JsonText, QuotesBackslashesAndControlCharactersAreEscaped) {
    EXPECT_EQ(text("a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(text("\b\t\n\f\r\x01\x1f"), R"("\b\t\n\f\r\u0001\u001f")");
    EXPECT_EQ(text(std::string_view("\0x", 2)), R"("\u0000x")");
}

TEST(JsonText, Utf8StaysAsItIs) {
    EXPECT_EQ(text("Grüße, 机器人 🤖"), "\"Grüße, 机器人 🤖\"");
}

TEST(JsonText, BytesThatAreNoUtf8BecomeTheReplacementCharacter) {
    const std::string mark = "\xEF\xBF\xBD";
    EXPECT_EQ(text("a\xFFz"), "\"a" + mark + "z\"");
    EXPECT_EQ(text("\xC3"), "\"" + mark + "\"");                                   // cut short
    EXPECT_EQ(text("\xC0\xAF"), "\"" + mark + mark + "\"");                        // longer than needed
    EXPECT_EQ(text("\xED\xA0\x80"), "\"" + mark + mark + mark + "\"");             // half of a pair
    EXPECT_EQ(text("\xF4\x90\x80\x80"), "\"" + mark + mark + mark + mark + "\"");  // beyond the last
}

}  // namespace
}  // namespace quorrin
