#include "base/colour_mix.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

constexpr Colour kOne = rgb(10, 200, 0);
constexpr Colour kTwo = rgb(110, 100, 250);

TEST(ColourMix, NothingOfTheWayGivesTheFirst) {
    EXPECT_EQ(mixedColour(kOne, kTwo, 0), kOne);
}

TEST(ColourMix, AllOfTheWayGivesTheSecond) {
    EXPECT_EQ(mixedColour(kOne, kTwo, 100), kTwo);
}

TEST(ColourMix, APercentageAbove100CountsAs100) {
    EXPECT_EQ(mixedColour(kOne, kTwo, 101), kTwo);
    EXPECT_EQ(mixedColour(kOne, kTwo, 32767), kTwo);
}

TEST(ColourMix, EachPartGoesItsOwnWay) {
    EXPECT_EQ(mixedColour(kOne, kTwo, 30), rgb(40, 170, 75));
}

TEST(ColourMix, APartThatFallsBetweenTwoNumbersIsRoundedHalvesToTheEvenOne) {
    EXPECT_EQ(mixedColour(rgb(0, 1, 3), rgb(1, 2, 4), 50), rgb(0, 2, 4));
    EXPECT_EQ(mixedColour(rgb(10, 0, 100), rgb(3, 255, 0), 50), rgb(6, 128, 50));
    EXPECT_EQ(mixedColour(rgb(0, 0, 0), rgb(10, 10, 10), 38), rgb(4, 4, 4));
}

TEST(ColourMix, APlainColourStaysAsItIs) {
    EXPECT_EQ(plainColour(kOne, {{0x12, kTwo}}), kOne);
}

TEST(ColourMix, ASystemColourIsTranslatedThroughTheTable) {
    EXPECT_EQ(plainColour(kButtonText, {{0x12, kTwo}}), kTwo);
}

TEST(ColourMix, ASystemColourThatTheTableLacksIsBlack) {
    EXPECT_EQ(plainColour(kButtonFace, {{0x12, kTwo}}), rgb(0, 0, 0));
}

TEST(ColourMix, TheSystemColoursHaveTheirNumbers) {
    EXPECT_EQ(static_cast<std::uint32_t>(kButtonFace), 0x8000000FU);
    EXPECT_EQ(static_cast<std::uint32_t>(kButtonShadow), 0x80000010U);
    EXPECT_EQ(static_cast<std::uint32_t>(kButtonText), 0x80000012U);
}

TEST(ColourMix, TheContrastOfBlackAndWhiteIs21EitherWay) {
    EXPECT_NEAR(contrastRatio(rgb(0, 0, 0), rgb(255, 255, 255)), 21.0, 1e-9);
    EXPECT_NEAR(contrastRatio(rgb(255, 255, 255), rgb(0, 0, 0)), 21.0, 1e-9);
}

TEST(ColourMix, TheContrastOfAColourWithItselfIsOne) {
    EXPECT_NEAR(contrastRatio(kOne, kOne), 1.0, 1e-9);
}

TEST(ColourMix, TheContrastOfAMiddleGreyOnWhiteIsTheKnownOne) {
    EXPECT_NEAR(contrastRatio(rgb(0x76, 0x76, 0x76), rgb(255, 255, 255)), 4.54, 0.005);
}

}  // namespace
}  // namespace quorrin
