// The control panel's scroll bars and buttons.
#include <gtest/gtest.h>

#include "support/panel_bench.h"

namespace quorrin {
namespace {

struct ControlPanelBars : testing::Test, PanelBench {
    void SetUp() override { open(); }
};

TEST_F(ControlPanelBars, GasWritesItsLevelAndShowsIt) {
    panel.scrGas.operatorMove(4321);
    EXPECT_EQ(values.gasLevel, 4321);
    EXPECT_EQ(panel.slbGasLevel.caption(), "4321");
}

TEST_F(ControlPanelBars, BrakeAndSteeringWriteTheirLevels) {
    panel.scrBrake.operatorMove(9001);
    panel.hscSteering.operatorMove(4567);
    EXPECT_EQ(values.brakeLevel, 9001);
    EXPECT_EQ(values.steeringLevel, 4567);
}

TEST_F(ControlPanelBars, HeadUpDownWritesItsLevelAndIsShownMirrored) {
    panel.scrHeadUD.operatorMove(3400);
    EXPECT_EQ(values.headCmdUpDown, 3400);
    EXPECT_EQ(panel.sldUD.value(), 100);
    panel.scrHeadUD.operatorMove(0);
    EXPECT_EQ(values.headCmdUpDown, 0);
    EXPECT_EQ(panel.sldUD.value(), 3500);
}

TEST_F(ControlPanelBars, HeadAtItsOwnTopShowsTheFloorOfTheMirror) {
    panel.scrHeadUD.operatorMove(3500);
    EXPECT_EQ(values.headCmdUpDown, 3500);
    EXPECT_EQ(panel.sldUD.value(), 0);
}

TEST_F(ControlPanelBars, HeadLeftRightWritesItsLevelAndIsShown) {
    panel.hscHeadLR.operatorMove(4000);
    EXPECT_EQ(values.headCmdLeftRight, 4000);
    EXPECT_EQ(panel.sldLR.value(), 4000);
}

TEST_F(ControlPanelBars, MouthWritesItsLevelAboveTheShutPlace) {
    panel.scrMouthUD.operatorMove(1200);
    EXPECT_EQ(values.mouthCmd, 3850);
    panel.scrMouthUD.operatorMove(0);
    EXPECT_EQ(values.mouthCmd, 2650);
}

TEST_F(ControlPanelBars, WithTheJoystickInChargeOnlySteeringStillWrites) {
    values.headCmdUpDown = 2000;
    values.headCmdLeftRight = 2000;
    values.mouthCmd = 3000;
    values.joystickActive = true;
    panel.scrGas.operatorMove(1);
    panel.scrBrake.operatorMove(2);
    panel.hscSteering.operatorMove(4600);
    panel.scrHeadUD.operatorMove(3);
    panel.hscHeadLR.operatorMove(4);
    panel.scrMouthUD.operatorMove(5);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(panel.slbGasLevel.caption(), "10000");
    EXPECT_EQ(values.brakeLevel, 10000);
    EXPECT_EQ(values.steeringLevel, 4600);
    EXPECT_EQ(values.headCmdUpDown, 2000);
    EXPECT_EQ(panel.sldUD.value(), 2000);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
    EXPECT_EQ(panel.sldLR.value(), 2000);
    EXPECT_EQ(values.mouthCmd, 3000);
}

TEST_F(ControlPanelBars, GasGoesUpByStepsOf500DownToFullGasAndNoFurther) {
    panel.cmdGasUp.operatorClick();
    EXPECT_EQ(values.gasLevel, 9500);
    click(panel.cmdGasUp, 30);
    EXPECT_EQ(panel.scrGas.value(), 0);
    EXPECT_EQ(values.gasLevel, 0);
}

TEST_F(ControlPanelBars, GasUpWithLessThanAStepLeftOnlyReleasesTheBrake) {
    panel.scrGas.operatorMove(400);
    panel.scrBrake.operatorMove(0);
    panel.cmdGasUp.operatorClick();
    EXPECT_EQ(values.gasLevel, 400);
    EXPECT_EQ(values.brakeLevel, 10000);
}

TEST_F(ControlPanelBars, GasUpAtExactlyOneStepIsTaken) {
    panel.scrGas.operatorMove(500);
    panel.cmdGasUp.operatorClick();
    EXPECT_EQ(values.gasLevel, 0);
    panel.scrGas.operatorMove(499);
    panel.cmdGasUp.operatorClick();
    EXPECT_EQ(values.gasLevel, 499);
}

TEST_F(ControlPanelBars, GasDownAt9500Gives10000AndAt9501Nothing) {
    panel.scrGas.operatorMove(9500);
    panel.cmdGasDown.operatorClick();
    EXPECT_EQ(values.gasLevel, 10000);
    panel.scrGas.operatorMove(9501);
    panel.cmdGasDown.operatorClick();
    EXPECT_EQ(values.gasLevel, 9501);
}

TEST_F(ControlPanelBars, GasDownLeavesTheBrake) {
    panel.scrGas.operatorMove(5000);
    panel.scrBrake.operatorMove(0);
    panel.cmdGasDown.operatorClick();
    EXPECT_EQ(values.gasLevel, 5500);
    EXPECT_EQ(values.brakeLevel, 0);
}

TEST_F(ControlPanelBars, TheBrakeKeyBrakesFullyWithoutGasStraightAhead) {
    panel.scrGas.operatorMove(0);
    panel.hscSteering.operatorMove(4500);
    panel.cmdBrake.operatorClick();
    EXPECT_EQ(values.brakeLevel, 0);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.steeringLevel, 5000);
}

TEST_F(ControlPanelBars, ATurnKeySteersWhileItIsHeld) {
    panel.cmdTurnLeft.operatorPress();
    EXPECT_EQ(values.steeringLevel, 4500);
    panel.cmdTurnLeft.operatorRelease();
    EXPECT_EQ(values.steeringLevel, 5000);
    panel.cmdTurnRight.operatorPress();
    EXPECT_EQ(values.steeringLevel, 5500);
    panel.cmdTurnRight.operatorRelease();
    EXPECT_EQ(values.steeringLevel, 5000);
}

TEST_F(ControlPanelBars, AClickOnATurnKeyWithoutAButtonHeldDoesNothing) {
    panel.hscSteering.operatorMove(4700);
    panel.cmdTurnLeft.operatorClick();
    panel.cmdTurnRight.operatorClick();
    EXPECT_EQ(values.steeringLevel, 4700);
}

TEST_F(ControlPanelBars, ATurnKeyHeldWhileThePanelGoesIsStillReleased) {
    panel.cmdTurnLeft.operatorPress();
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_EQ(values.steeringLevel, 4500);
    panel.cmdTurnLeft.operatorRelease();
    EXPECT_EQ(values.steeringLevel, 5000);
}

TEST_F(ControlPanelBars, TurningHoldsWhileTheJoystickIsInCharge) {
    values.joystickActive = true;
    panel.cmdTurnRight.operatorPress();
    EXPECT_EQ(values.steeringLevel, 5500);
}

TEST_F(ControlPanelBars, TheHeadGoesUpBySteps100To3400AndNoFurther) {
    panel.cmdHeadUp.operatorClick();
    EXPECT_EQ(values.headCmdUpDown, 2100);
    click(panel.cmdHeadUp, 30);
    EXPECT_EQ(values.headCmdUpDown, 3400);
    panel.scrHeadUD.operatorMove(3399);
    panel.cmdHeadUp.operatorClick();
    EXPECT_EQ(values.headCmdUpDown, 3499);
}

TEST_F(ControlPanelBars, TheHeadGoesDownTo100AndFrom101To1) {
    click(panel.cmdHeadDown, 30);
    EXPECT_EQ(values.headCmdUpDown, 100);
    panel.scrHeadUD.operatorMove(101);
    panel.cmdHeadDown.operatorClick();
    EXPECT_EQ(values.headCmdUpDown, 1);
}

TEST_F(ControlPanelBars, TheHeadGoesLeftTo100AndFrom101To1) {
    panel.cmdHeadLeft.operatorClick();
    EXPECT_EQ(values.headCmdLeftRight, 1900);
    click(panel.cmdHeadLeft, 30);
    EXPECT_EQ(values.headCmdLeftRight, 100);
    panel.hscHeadLR.operatorMove(101);
    panel.cmdHeadLeft.operatorClick();
    EXPECT_EQ(values.headCmdLeftRight, 1);
}

TEST_F(ControlPanelBars, TheHeadGoesRightFrom3800To3900AndNoFurther) {
    panel.hscHeadLR.operatorMove(3800);
    panel.cmdHeadRight.operatorClick();
    EXPECT_EQ(values.headCmdLeftRight, 3900);
    panel.cmdHeadRight.operatorClick();
    EXPECT_EQ(values.headCmdLeftRight, 3900);
}

TEST_F(ControlPanelBars, TheMouthMovedByStepsAloneRestsInsideItsScale) {
    click(panel.cmdMouthDown, 40);
    EXPECT_EQ(panel.scrMouthUD.value(), 1100);
    click(panel.cmdMouthUp, 40);
    EXPECT_EQ(panel.scrMouthUD.value(), 100);
    panel.scrMouthUD.operatorMove(1099);
    click(panel.cmdMouthDown);
    EXPECT_EQ(panel.scrMouthUD.value(), 1199);
    panel.scrMouthUD.operatorMove(101);
    click(panel.cmdMouthUp);
    EXPECT_EQ(panel.scrMouthUD.value(), 1);
}

TEST_F(ControlPanelBars, ResetLooksStraightAhead) {
    panel.scrHeadUD.operatorMove(100);
    panel.hscHeadLR.operatorMove(200);
    panel.scrMouthUD.operatorMove(300);
    panel.cmdReset.operatorClick();
    EXPECT_EQ(values.headCmdUpDown, 2000);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
    EXPECT_EQ(values.mouthCmd, 2950);
}

TEST_F(ControlPanelBars, TheButtonsGoThroughTheJoysticksGate) {
    values.joystickActive = true;
    values.mouthCmd = 3000;
    for (CommandButton* button : {&panel.cmdGasUp, &panel.cmdHeadUp, &panel.cmdHeadLeft, &panel.cmdMouthDown})
        button->operatorClick();
    EXPECT_EQ(panel.scrGas.value(), 9500);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.headCmdUpDown, 0);
    EXPECT_EQ(values.headCmdLeftRight, 0);
    EXPECT_EQ(values.mouthCmd, 3000);
}

}  // namespace
}  // namespace quorrin
