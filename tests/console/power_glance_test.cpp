#include "console/power_glance.h"

#include <gtest/gtest.h>

#include "base/program_error.h"
#include "console/lamp_sign.h"
#include "robotlink/power.h"
#include "session/record/general_constants.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using GeneralConstants::kGreen;
using GeneralConstants::kLightGreen;
using GeneralConstants::kRed;

constexpr int kCool = 900;
constexpr int kHot = 700;

struct PowerGlance : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    void SetUp() override {
        bench.station.startAtMainForm();
        LinkProperties& frame = bench.robotTI;
        frame.PowerRefAdc = 4095;  // 1.5 V, so that 4095 counts are 12 V
        frame.Battery1Adc = 4000;
        frame.Battery2Adc = 4000;
        frame.DcInAdc = 0;
        frame.Battery1TempAdc = kCool;
        frame.Battery2TempAdc = kCool;
    }
    LinkProperties& frame() { return bench.robotTI; }
    LampSign sign(int element) { return lampSign(values, gui, element); }
    Glance at(int element) { return lampGlance(values, gui, element); }
};

TEST_F(PowerGlance, BeforeTheFirstFrameNothingIsKnown) {
    for (int element = 0; element <= 6; ++element) {
        EXPECT_EQ(at(element).word, "NO DATA") << element;
        EXPECT_EQ(at(element).tone, Tone::off) << element;
        EXPECT_EQ(sign(element).shape, LampShape::question) << element;
    }
}

TEST_F(PowerGlance, AFullBatteryIsWellAndTellsItsVoltage) {
    bench.powerFrames(1);
    EXPECT_EQ(at(0).word, "OK");
    EXPECT_EQ(at(0).detail, "11.72 V");
    EXPECT_EQ(at(0).tone, Tone::good);
    EXPECT_EQ(sign(1).shape, LampShape::tick);
}

TEST_F(PowerGlance, ALowBatterySaysSoInBothColoursOfItsBlinking) {
    frame().Battery2Adc = 3000;
    bench.powerFrames(1);
    for (int period = 0; period < 4; ++period) {
        flashRed(values, gui);
        EXPECT_EQ(at(1).word, "LOW");
        EXPECT_EQ(sign(1).shape, LampShape::exclamation);
        EXPECT_EQ(at(1).tone, Tone::bad);
    }
    EXPECT_EQ(at(0).word, "OK");
}

TEST_F(PowerGlance, ABatteryThatTheChargerReportsIsToBeChecked) {
    frame().ChargerStatusByte = 1;
    frame().ChargerFlagsByte = 128;
    bench.powerFrames(1);
    EXPECT_EQ(at(0).word, "CHECK");
    EXPECT_EQ(at(0).detail, "11.72 V, reported by the charger");
    EXPECT_EQ(at(1).word, "OK");
}

TEST_F(PowerGlance, ALampLeftRedAfterItsFlagWasClearedTellsOfThePast) {
    frame().Battery1Adc = 3000;
    bench.powerFrames(1);
    values.battery1Flash = false;
    ASSERT_EQ(gui.shpBatteryStatus(0).fill(), kRed);
    EXPECT_EQ(at(0).word, "WAS LOW");
    EXPECT_EQ(at(0).tone, Tone::warning);
    gui.shpBatteryStatus(0).setFill(kLightGreen);
    EXPECT_EQ(at(0).word, "WAS LOW");
    gui.shpBatteryStatus(0).setFill(kGreen);
    EXPECT_EQ(at(0).word, "OK");
}

TEST_F(PowerGlance, TheDockIsTold) {
    bench.powerFrames(1);
    EXPECT_EQ(at(2).word, "NO DOCK");
    EXPECT_EQ(at(2).detail, "0.00 V");
    EXPECT_EQ(at(2).tone, Tone::off);
    frame().DcInAdc = 4095;
    bench.powerFrames(1);
    EXPECT_EQ(at(2).word, "DOCKED");
    EXPECT_EQ(at(2).detail, "12.00 V");
    EXPECT_EQ(sign(2).shape, LampShape::plug);
}

TEST_F(PowerGlance, ChargingIsToldInBothColoursOfItsBlinking) {
    frame().ChargerStatusByte = 1;
    bench.powerFrames(1);
    for (int period = 0; period < 4; ++period) {
        flashRed(values, gui);
        EXPECT_EQ(at(3).word, "CHARGING");
        EXPECT_EQ(sign(3).shape, LampShape::bolt);
    }
}

TEST_F(PowerGlance, AChargerAtRestIsOff) {
    frame().ChargerStatusByte = 0;
    bench.powerFrames(1);
    EXPECT_EQ(at(3).word, "OFF");
    EXPECT_EQ(at(3).tone, Tone::off);
}

TEST_F(PowerGlance, AChargerThatDoesNotTellIsUnclearWhateverItsLampShows) {
    frame().ChargerStatusByte = 0;
    bench.powerFrames(1);
    frame().ChargerStatusByte = 0x08;
    bench.powerFrames(1);
    ASSERT_EQ(gui.shpBatteryStatus(3).fill(), kRed);
    EXPECT_EQ(at(3).word, "UNCLEAR");
}

TEST_F(PowerGlance, AHotBatteryIsTold) {
    frame().Battery2TempAdc = kHot;
    bench.powerFrames(1);
    EXPECT_EQ(at(4).word, "HOT");
    EXPECT_EQ(at(4).detail, "900 and 700 (cool from 800)");
    EXPECT_EQ(at(4).tone, Tone::bad);
    frame().Battery2TempAdc = kCool;
    bench.powerFrames(1);
    EXPECT_EQ(at(4).word, "OK");
}

struct DriveGlance : PowerGlance {
    void drawAmperes(double left, double right, int frames) {
        bench.myRobot.DriveCurrentLeft = static_cast<int>(left * 728);
        bench.myRobot.DriveCurrentRight = static_cast<int>(right * 728);
        for (int i = 0; i < frames; ++i) bench.myRobot.MotorFrame.raise();
    }
};

TEST_F(DriveGlance, ACoolDriveIsWellAndTellsItsCurrent) {
    drawAmperes(0.5, 0.25, 1);
    EXPECT_EQ(at(5).word, "OK");
    EXPECT_EQ(at(5).detail, "0.50 A, load 0 of 90");
    EXPECT_EQ(at(6).detail, "0.25 A, load 0 of 90");
    EXPECT_LT(at(5).progress, 0);
}

TEST_F(DriveGlance, AWarmDriveShowsItsLoad) {
    drawAmperes(1.6, 0.1, 20);
    EXPECT_EQ(at(5).word, "OK");
    EXPECT_NEAR(at(5).progress, values.motorHeatLeft / 90, 1e-9);
    EXPECT_GT(at(5).progress, 0.5);
}

TEST_F(DriveGlance, AnOverloadedDriveIsToldAndTheOtherOneIsHeld) {
    drawAmperes(1.6, 0.1, 31);
    ASSERT_TRUE(values.motionInhibit);
    EXPECT_EQ(at(5).word, "OVERLOAD");
    EXPECT_EQ(at(5).tone, Tone::bad);
    EXPECT_EQ(sign(5).shape, LampShape::cross);
    EXPECT_EQ(at(5).progress, 1.0);
    EXPECT_EQ(at(6).word, "HELD");
}

TEST_F(DriveGlance, ALampStillRedBelowTheLimitIsCooling) {
    drawAmperes(1.6, 0.1, 31);
    drawAmperes(0.1, 0.1, 20);
    ASSERT_LT(values.motorHeatLeft, 90);
    ASSERT_EQ(gui.shpBatteryStatus(5).fill(), kRed);
    EXPECT_EQ(at(5).word, "COOLING");
    EXPECT_EQ(at(5).tone, Tone::warning);
}

TEST_F(DriveGlance, ADriveThatHasCooledIsWellAgain) {
    drawAmperes(1.6, 0.1, 31);
    drawAmperes(0.1, 0.1, 300);
    EXPECT_EQ(at(5).word, "OK");
    EXPECT_EQ(at(6).word, "OK");
}

TEST_F(PowerGlance, ALampThatIsNotThereIsAProgramError) {
    EXPECT_THROW(sign(7), ProgramError);
    EXPECT_THROW(sign(-1), ProgramError);
}

}  // namespace
}  // namespace quorrin
