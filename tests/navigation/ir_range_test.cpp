#include <gtest/gtest.h>

#include "navigation/math/ir_range.h"

namespace quorrin {
namespace {

TEST(IrRangeFromAdc, ReadingsOutsideTheConverterCountAsOne) {
    const double ofOne = irRangeFromAdc(1);
    EXPECT_NEAR(ofOne, -1.28, 0.01);
    EXPECT_EQ(irRangeFromAdc(0), ofOne);
    EXPECT_EQ(irRangeFromAdc(-300), ofOne);
    EXPECT_EQ(irRangeFromAdc(4096), ofOne);
    EXPECT_EQ(irRangeFromAdc(5000), ofOne);
}

TEST(IrRangeFromAdc, FollowsTheCurve) {
    EXPECT_EQ(irRangeFromAdc(1000), 21.6 / (1000 * 3.0 / 4028 - 0.17) / 100.0);
    EXPECT_NEAR(irRangeFromAdc(1000), 0.3758, 0.0001);
}

TEST(IrRangeFromAdc, FarThingsReadAsTheFarEnd) {
    EXPECT_EQ(irRangeFromAdc(229), 0.81);  // just over the floor
    EXPECT_EQ(irRangeFromAdc(590), 0.81);
    EXPECT_LT(irRangeFromAdc(591), 0.81);
}

TEST(IrRangeFromAdc, NearThingsReadAsTheNearEnd) {
    EXPECT_EQ(irRangeFromAdc(4095), 0.09);
    EXPECT_EQ(irRangeFromAdc(3129), 0.09);
    EXPECT_GE(irRangeFromAdc(3128), 0.1);
}

TEST(IrRangeFromAdc, ReadingsUnderTheFloorGiveANegativeRange) {
    EXPECT_LT(irRangeFromAdc(228), 0);
    EXPECT_LT(irRangeFromAdc(100), 0);
}

}  // namespace
}  // namespace quorrin
