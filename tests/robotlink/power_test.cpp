#include "robotlink/power.h"

#include <gtest/gtest.h>

#include "support/fake_link.h"
#include "support/intake_form.h"

namespace quorrin {
namespace {

constexpr Colour kRed = 255;
constexpr Colour kGreen = 49152;
constexpr Colour kLightGreen = 0x80FF80;
constexpr Colour kBlue = rgb(0, 0, 200);

class Power : public ::testing::Test {
  protected:
    Power() {
        // With this reference a converter reading of 4095 is 12 V, and cool batteries on no dock.
        robot.PowerRefAdc = 4095;
        robot.Battery1Adc = 4000;
        robot.Battery2Adc = 3900;
        robot.Battery1TempAdc = 900;
        robot.Battery2TempAdc = 900;
        power.powerByte = 63;
        hooks.suspendTeleoperation = [this] { ++suspends; };
        hooks.formRunning = true;
    }
    void frame() { measurePower(robot, mode, power, gui, gui, hooks); }
    void onDock() { robot.DcInAdc = 4095; }
    void paint(Colour colour) {
        for (int i = 0; i < 7; ++i) gui.shpBatteryStatus(i).setFill(colour);
    }

    VirtualClock clock;
    IntakeForm gui{clock};
    FakeLink robot;
    ModeValues mode;
    PowerValues power;
    PowerHooks hooks;
    int suspends = 0;
};

TEST_F(Power, TakesTheReferenceFromItsReading) {
    robot.PowerRefAdc = 2047;
    frame();
    EXPECT_DOUBLE_EQ(power.refVolts, 6142.5 / 2047);
    EXPECT_EQ(gui.lblVolRef.caption(), "3.001");
}

TEST_F(Power, IsAllZeroWithoutAReference) {
    for (const int reading : {0, -5}) {
        robot.PowerRefAdc = reading;
        onDock();
        mode.requestIdle = false;
        frame();
        EXPECT_EQ(power.refVolts, 0.0);
        EXPECT_EQ(gui.lblVolRef.caption(), "0.000");
        EXPECT_EQ(gui.lblBat1vol.caption(), "0.00 V");
        EXPECT_EQ(gui.lblDCIN.caption(), "0.00 V");
        EXPECT_EQ(gui.lamp(0), kRed);
        EXPECT_EQ(gui.lamp(1), kRed);
        EXPECT_EQ(gui.lamp(2), kRed);
        EXPECT_FALSE(mode.requestIdle);
        EXPECT_EQ(suspends, 0);
        EXPECT_EQ(power.powerByte, 63);
    }
}

TEST_F(Power, TakesAReferenceReadingOfOne) {
    robot.PowerRefAdc = 1;
    frame();
    EXPECT_DOUBLE_EQ(power.refVolts, 6142.5);
}

TEST_F(Power, MeasuresVoltagesAndTemperatures) {
    robot.PowerRefAdc = 2000;
    robot.Battery1Adc = 1900;
    robot.Battery2Adc = 1800;
    robot.DcInAdc = 1000;
    robot.Battery1TempAdc = 812;
    robot.Battery2TempAdc = 799;
    frame();
    EXPECT_DOUBLE_EQ(power.battery1Volts, 1900 / 4095.0 * (6142.5 / 2000) * 8);
    EXPECT_DOUBLE_EQ(power.battery2Volts, 1800 / 4095.0 * (6142.5 / 2000) * 8);
    EXPECT_DOUBLE_EQ(power.dcInVolts, 1000 / 4095.0 * (6142.5 / 2000) * 8);
    EXPECT_EQ(gui.lblBat1vol.caption(), "11.40 V");
    EXPECT_EQ(gui.lblBat2Vol.caption(), "10.80 V");
    EXPECT_EQ(gui.lblDCIN.caption(), "6.00 V");
    EXPECT_DOUBLE_EQ(power.battery1Temp, 812);
    EXPECT_DOUBLE_EQ(power.battery2Temp, 799);
    EXPECT_EQ(gui.lblBat1Temp.caption(), "812");
    EXPECT_EQ(gui.lblBat2Temp.caption(), "799");
}

TEST_F(Power, KeepsTheLowBytesOfTheCharger) {
    robot.ChargerStatusByte = 0x1268;
    robot.ChargerFlagsByte = -1;
    frame();
    EXPECT_EQ(power.chargerStatus, 0x68);
    EXPECT_EQ(gui.lblLTC1960.caption(), "104");
    EXPECT_EQ(power.chargerFlags, 255);
}

TEST_F(Power, ShowsGoodBatteriesGreenAndSteady) {
    paint(kBlue);
    power.battery1Flash = power.battery2Flash = true;
    frame();
    EXPECT_EQ(gui.lamp(0), kGreen);
    EXPECT_EQ(gui.lamp(1), kGreen);
    EXPECT_FALSE(power.battery1Flash);
    EXPECT_FALSE(power.battery2Flash);
}

TEST_F(Power, FlashesTheLowBatteryOnly) {
    robot.Battery2Adc = 3000;  // 8.8 V
    frame();
    EXPECT_EQ(gui.lamp(0), kGreen);
    EXPECT_FALSE(power.battery1Flash);
    EXPECT_EQ(gui.lamp(1), kRed);
    EXPECT_TRUE(power.battery2Flash);
    robot.Battery1Adc = 3000;
    robot.Battery2Adc = 3900;
    frame();
    EXPECT_EQ(gui.lamp(0), kRed);
    EXPECT_TRUE(power.battery1Flash);
    EXPECT_EQ(gui.lamp(1), kGreen);
    EXPECT_FALSE(power.battery2Flash);
}

TEST_F(Power, TakesABatteryAtTheThresholdForLow) {
    robot.Battery1Adc = 4095;
    frame();
    gui.txtVolTh.setText("12");
    ASSERT_DOUBLE_EQ(power.battery1Volts, 12.0);
    frame();
    EXPECT_EQ(gui.lamp(0), kRed);
    EXPECT_TRUE(power.battery1Flash);
}

TEST_F(Power, ReadsTheThresholdWithEveryFrame) {
    EXPECT_EQ(gui.txtVolTh.text(), "10.4");
    frame();
    EXPECT_EQ(gui.lamp(0), kGreen);
    gui.txtVolTh.setText("11.9");
    frame();
    EXPECT_EQ(gui.lamp(0), kRed);
}

TEST_F(Power, CountsAThresholdThatIsNoNumberAsZero) {
    for (const char* text : {"", "low", "10,4"}) {
        gui.txtVolTh.setText(text);
        robot.Battery1Adc = 1;
        robot.Battery2Adc = 0;
        robot.DcInAdc = 0;
        frame();
        EXPECT_EQ(gui.lamp(0), kGreen) << text;
        EXPECT_EQ(gui.lamp(1), kRed) << text;
        EXPECT_EQ(gui.lamp(2), kRed) << text;
    }
}

TEST_F(Power, ChargesOnADockWithCoolBatteries) {
    onDock();
    robot.Battery1TempAdc = robot.Battery2TempAdc = 800;
    frame();
    EXPECT_EQ(power.powerByte, 255);
    EXPECT_TRUE(mode.requestIdle);
    EXPECT_EQ(suspends, 1);
    EXPECT_EQ(gui.lamp(2), kGreen);
    EXPECT_TRUE(robot.operations().empty());  // the tick sends the byte
}

TEST_F(Power, TurnsTheDockLampGreenAgainAfterItWasRed) {
    frame();
    ASSERT_EQ(gui.lamp(2), kRed);
    onDock();
    frame();
    EXPECT_EQ(gui.lamp(2), kGreen);
}

TEST_F(Power, AsksForIdleWithEveryFrameOnADock) {
    onDock();
    for (int i = 1; i <= 3; ++i) {
        mode.requestIdle = false;
        frame();
        EXPECT_TRUE(mode.requestIdle);
        EXPECT_EQ(suspends, i);
    }
}

TEST_F(Power, StopsChargingOnADockWithinOneFrameWhenABatteryIsHot) {
    onDock();
    frame();
    ASSERT_EQ(power.powerByte, 255);
    mode.requestIdle = false;
    power.chargeFlash = true;
    robot.ChargerStatusByte = 0x08;  // says nothing about charging
    robot.Battery2TempAdc = 799;
    frame();
    EXPECT_EQ(power.powerByte, 63);
    EXPECT_FALSE(power.chargeFlash);
    EXPECT_FALSE(mode.requestIdle);
    EXPECT_EQ(suspends, 2);
    EXPECT_EQ(gui.lamp(2), kGreen);
}

TEST_F(Power, IsStoppedByEitherHotBattery) {
    onDock();
    power.powerByte = 255;
    robot.Battery1TempAdc = 799;
    frame();
    EXPECT_EQ(power.powerByte, 63);
}

TEST_F(Power, LeavesOtherBitsOfThePowerByteAlone) {
    onDock();
    power.powerByte = 0x1B;
    frame();
    EXPECT_EQ(power.powerByte, 0xDB);
    robot.Battery1TempAdc = 0;
    frame();
    EXPECT_EQ(power.powerByte, 0x1B);
}

TEST_F(Power, HoldsTheDriverOnlyWhileTheFormRuns) {
    onDock();
    hooks.formRunning = false;
    frame();
    EXPECT_EQ(suspends, 0);
    EXPECT_TRUE(mode.requestIdle);
    EXPECT_EQ(power.powerByte, 255);
    robot.Battery1TempAdc = 0;
    frame();
    EXPECT_EQ(suspends, 0);
    EXPECT_EQ(power.powerByte, 63);
}

TEST_F(Power, KeepsTheChargeBitsWhenTheRobotLeavesTheDock) {
    onDock();
    frame();
    robot.DcInAdc = 0;
    mode.requestIdle = false;
    power.chargeFlash = true;
    robot.ChargerStatusByte = 0x08;
    frame();
    EXPECT_EQ(power.powerByte, 255);
    EXPECT_FALSE(mode.requestIdle);
    EXPECT_EQ(suspends, 1);
    EXPECT_TRUE(power.chargeFlash);
    EXPECT_EQ(gui.lamp(2), kRed);
}

TEST_F(Power, ShowsThatChargingRuns) {
    robot.ChargerStatusByte = 0x01;
    gui.cmdStopChg.setEnabled(false);
    paint(kBlue);
    frame();
    EXPECT_TRUE(gui.cmdStopChg.enabled());
    EXPECT_EQ(gui.lamp(3), kGreen);
    EXPECT_TRUE(power.chargeFlash);
    EXPECT_FALSE(power.battery1Flash);
    EXPECT_FALSE(power.battery2Flash);
}

TEST_F(Power, ShowsThatNothingCharges) {
    robot.ChargerStatusByte = 0x0100;  // its low byte is 0
    power.chargeFlash = true;
    frame();
    EXPECT_FALSE(gui.cmdStopChg.enabled());
    EXPECT_EQ(gui.lamp(3), kRed);
    EXPECT_FALSE(power.chargeFlash);
}

TEST_F(Power, MarksTheBatteryThatIsCharged) {
    robot.ChargerStatusByte = 0x01;
    robot.ChargerFlagsByte = 0x80;
    frame();
    EXPECT_EQ(gui.lamp(0), kRed);
    EXPECT_TRUE(power.battery1Flash);
    EXPECT_EQ(gui.lamp(1), kGreen);
    EXPECT_FALSE(power.battery2Flash);
    robot.ChargerFlagsByte = 0x7F;
    frame();
    EXPECT_EQ(gui.lamp(0), kGreen);
    EXPECT_FALSE(power.battery1Flash);
    EXPECT_EQ(gui.lamp(1), kRed);
    EXPECT_TRUE(power.battery2Flash);
    robot.ChargerFlagsByte = 0xC0;
    frame();
    EXPECT_TRUE(power.battery1Flash);
    EXPECT_TRUE(power.battery2Flash);
}

TEST_F(Power, DoesNotMarkBatteriesWhileNothingCharges) {
    robot.ChargerStatusByte = 0;
    robot.ChargerFlagsByte = 0xC0;
    frame();
    EXPECT_FALSE(power.battery1Flash);
    EXPECT_FALSE(power.battery2Flash);
}

TEST_F(Power, LeavesTheChargingLampAndKeyAloneWhenTheChargerIsUnclear) {
    for (const int bit : {0x08, 0x20, 0x40}) {
        for (const bool before : {false, true}) {
            robot.ChargerStatusByte = bit | 0x01;
            robot.ChargerFlagsByte = 0xC0;
            gui.cmdStopChg.setEnabled(before);
            gui.shpBatteryStatus(3).setFill(kBlue);
            power.chargeFlash = before;
            frame();
            EXPECT_EQ(gui.cmdStopChg.enabled(), before) << bit;
            EXPECT_EQ(gui.lamp(3), kBlue) << bit;
            EXPECT_EQ(power.chargeFlash, before) << bit;
            EXPECT_FALSE(power.battery1Flash) << bit;
        }
    }
}

TEST_F(Power, ReadsTheChargerInEveryOtherState) {
    for (const int bit : {0x01, 0x02, 0x04, 0x10, 0x80}) {
        robot.ChargerStatusByte = bit;
        power.chargeFlash = false;
        frame();
        EXPECT_TRUE(power.chargeFlash) << bit;
    }
}

TEST_F(Power, ShowsTheTemperatureLampGreenWhenBothAreCool) {
    robot.Battery1TempAdc = robot.Battery2TempAdc = 800;
    frame();
    EXPECT_EQ(gui.lamp(4), kGreen);
    robot.Battery1TempAdc = 799;
    frame();
    EXPECT_EQ(gui.lamp(4), kRed);
    robot.Battery1TempAdc = 800;
    robot.Battery2TempAdc = 799;
    frame();
    EXPECT_EQ(gui.lamp(4), kRed);
}

TEST_F(Power, LeavesTheDriveLampsAlone) {
    paint(kBlue);
    frame();
    EXPECT_EQ(gui.lamp(5), kBlue);
    EXPECT_EQ(gui.lamp(6), kBlue);
}

TEST_F(Power, HasAPressableChargeKeyThatDoesNothing) {
    gui.show();
    gui.cmdCharge.operatorClick();
    EXPECT_FALSE(gui.tmrCharge.running());
    EXPECT_TRUE(robot.operations().empty());
}

TEST_F(Power, BlinksALampWhoseFlagIsSet) {
    paint(kGreen);
    power.battery1Flash = power.chargeFlash = true;
    flashRed(power, gui);
    EXPECT_EQ(gui.lamp(0), kLightGreen);
    EXPECT_EQ(gui.lamp(3), kLightGreen);
    EXPECT_EQ(gui.lamp(1), kGreen);
    flashRed(power, gui);
    EXPECT_EQ(gui.lamp(0), kRed);
    flashRed(power, gui);
    EXPECT_EQ(gui.lamp(0), kLightGreen);
    power.battery2Flash = true;
    flashRed(power, gui);
    EXPECT_EQ(gui.lamp(0), kRed);
    EXPECT_EQ(gui.lamp(1), kLightGreen);  // each from its own colour, not in step
    EXPECT_EQ(gui.lamp(2), kGreen);
}

TEST_F(Power, LeavesALampRedWhenItsFlagEndsThere) {
    paint(kRed);
    flashRed(power, gui);
    EXPECT_EQ(gui.lamp(0), kRed);
    EXPECT_EQ(gui.lamp(1), kRed);
    EXPECT_EQ(gui.lamp(3), kRed);
}

TEST_F(Power, BlinksInTheOrderBattery1Battery2Charge) {
    power.battery1Flash = power.battery2Flash = power.chargeFlash = true;
    std::vector<int> order;
    for (const int i : {0, 1, 3}) gui.shpBatteryStatus(i).onLook = [&order, i] { order.push_back(i); };
    flashRed(power, gui);
    EXPECT_EQ(order, (std::vector<int>{0, 1, 3}));
}

TEST_F(Power, BlinksFiveTimesASecondOnItsTimer) {
    gui.tmrFlashRed.setHandler([this] { flashRed(power, gui); });
    power.battery1Flash = true;
    gui.tmrFlashRed.setRunning(true);
    clock.runFor(199);
    EXPECT_EQ(gui.lamp(0), kGreen);
    clock.runFor(1);
    EXPECT_EQ(gui.lamp(0), kLightGreen);
    clock.runFor(200);
    EXPECT_EQ(gui.lamp(0), kRed);
}

TEST_F(Power, StopsChargingAtOnceOnTheStopKey) {
    power.powerByte = 255;
    stopCharge(power, robot);
    EXPECT_EQ(power.powerByte, 63);
    EXPECT_EQ(robot.take(), (std::vector<std::string>{"WritePowerByte 63"}));
    onDock();
    frame();
    EXPECT_EQ(power.powerByte, 255);  // the next frame on the dock charges again
}

}  // namespace
}  // namespace quorrin
