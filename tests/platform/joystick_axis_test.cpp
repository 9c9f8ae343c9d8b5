#include "platform/joystick_axis.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorrin {
namespace {

const AxisScale kStation{0, 10000, 1000, 9500};

int scaled(int raw) {
    return scaledAxis(static_cast<std::int16_t>(raw), kStation);
}

TEST(JoystickAxis, AnywhereInTheDeadZoneIsExactlyTheMiddle) {
    for (int raw = -3277; raw <= 3276; ++raw) ASSERT_EQ(scaled(raw), 5000) << raw;
}

// A tenth of half the way is 3276.25 to the right of the middle, which is at -0.5.
TEST(JoystickAxis, TheDeadZoneEndsAtATenthOfTheWay) {
    const AxisScale fine{0, 1'000'000'000, 1000, 9500};
    EXPECT_EQ(scaledAxis(3276, fine), 500'000'000);
    EXPECT_GT(scaledAxis(3277, fine), 500'000'000);
    EXPECT_EQ(scaledAxis(-3277, fine), 500'000'000);
    EXPECT_LT(scaledAxis(-3278, fine), 500'000'000);
}

TEST(JoystickAxis, TheOuterTwentiethIsExactlyTheEnd) {
    for (int raw = 31129; raw <= 32767; ++raw) ASSERT_EQ(scaled(raw), 10000) << raw;
    for (int raw = -32768; raw <= -31130; ++raw) ASSERT_EQ(scaled(raw), 0) << raw;
}

TEST(JoystickAxis, TheOuterTwentiethBeginsAtNinetyFivePercent) {
    const AxisScale fine{0, 1'000'000'000, 1000, 9500};
    EXPECT_LT(scaledAxis(31128, fine), 1'000'000'000);
    EXPECT_EQ(scaledAxis(31129, fine), 1'000'000'000);
    EXPECT_GT(scaledAxis(-31129, fine), 0);
    EXPECT_EQ(scaledAxis(-31130, fine), 0);
}

TEST(JoystickAxis, IsLinearBetweenDeadZoneAndSaturation) {
    // Half the way between 10 % and 95 % is 52.5 %.
    EXPECT_EQ(scaled(17203), 7500);
    EXPECT_EQ(scaled(-17204), 2500);
    // A quarter of it is 31.25 %.
    EXPECT_EQ(scaled(10239), 6250);
    EXPECT_EQ(scaled(-10240), 3750);
}

TEST(JoystickAxis, BothHalvesAreMirrorImagesAndNeverTurnBack) {
    int before = 0;
    for (int raw = -32768; raw <= 32767; ++raw) {
        const int value = scaled(raw);
        ASSERT_GE(value, before) << raw;
        ASSERT_EQ(value + scaled(-1 - raw), 10000) << raw;
        before = value;
    }
}

TEST(JoystickAxis, WithoutDeadZoneAndSaturationTheWholeRangeIsUsed) {
    const AxisScale plain{0, 10000, 0, 10000};
    EXPECT_EQ(scaledAxis(-32768, plain), 0);
    EXPECT_EQ(scaledAxis(32767, plain), 10000);
    EXPECT_EQ(scaledAxis(16383, plain), 7500);
}

TEST(JoystickAxis, ASliderIsLinearOverItsWholeRange) {
    EXPECT_EQ(scaledSlider(-32768, kStation), 0);
    EXPECT_EQ(scaledSlider(32767, kStation), 10000);
    EXPECT_EQ(scaledSlider(0, kStation), 5000);
    EXPECT_EQ(scaledSlider(1000, kStation), 5153);  // inside what would be a dead zone
    EXPECT_EQ(scaledSlider(32000, kStation), 9883);
}

TEST(JoystickAxis, AnotherRangeHasItsOwnMiddle) {
    const AxisScale other{-100, 300, 1000, 9500};
    EXPECT_EQ(scaledAxis(0, other), 100);
    EXPECT_EQ(scaledAxis(-32768, other), -100);
    EXPECT_EQ(scaledAxis(32767, other), 300);
    EXPECT_EQ(scaledSlider(-32768, other), -100);
}

}  // namespace
}  // namespace quorrin
