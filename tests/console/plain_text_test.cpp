#include "console/plain_text.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(PlainText, TrimmingTakesBlanksOnly) {
    EXPECT_EQ(trimmed("  10 1  "), "10 1");
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(leftTrimmed("  7 "), "7 ");
}

TEST(PlainText, DigitsOfDropsEverythingElse) {
    EXPECT_EQ(digitsOf("1a2.3 -4"), "1234");
    EXPECT_EQ(digitsOf("abc"), "");
}

TEST(PlainText, LeadingNumberStopsAtTheFirstStrangeCharacter) {
    EXPECT_EQ(leadingNumber("  12"), 12);
    EXPECT_EQ(leadingNumber("12x4"), 12);
    EXPECT_EQ(leadingNumber("12.5.6"), 12.5);
    EXPECT_EQ(leadingNumber("12."), 12);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("x"), 0);
}

}  // namespace
}  // namespace quorrin
