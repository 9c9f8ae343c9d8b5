#include "session/power_bits.h"

#include <gtest/gtest.h>

#include "support/fake_link.h"

namespace quorrin {
namespace {

struct PowerFlush : testing::Test {
    Form form{"frmGUI"};
    Label lblTest{form, "lblTest", "0"};
    PowerValues power;
    FakeLink robotTI;
};

TEST_F(PowerFlush, AChangedByteIsSentOnce) {
    power.powerByte = 63;
    flushPowerByte(power, lblTest, robotTI);
    flushPowerByte(power, lblTest, robotTI);
    EXPECT_EQ(robotTI.operations(), std::vector<std::string>{"WritePowerByte 63"});
    EXPECT_EQ(lblTest.caption(), "63");
}

TEST_F(PowerFlush, AnUnchangedByteIsNotSent) {
    power.powerByte = 0;
    flushPowerByte(power, lblTest, robotTI);
    EXPECT_TRUE(robotTI.operations().empty());
}

TEST(PowerBits, SettingAndClearingLeaveTheOtherBits) {
    PowerValues power;
    power.powerByte = 0b11111000;
    setPowerBits(power, kPowerSubsystemsAndMotion);
    EXPECT_EQ(power.powerByte, 255);
    clearPowerBits(power, kPowerMotion);
    EXPECT_EQ(power.powerByte, 251);
    clearPowerBits(power, kPowerSubsystemsAndMotion);
    EXPECT_EQ(power.powerByte, 248);
}

}  // namespace
}  // namespace quorrin
