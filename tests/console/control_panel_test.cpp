// The control panel's life: opened, hidden, closed, loaded again, activated.
#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "support/panel_bench.h"

namespace quorrin {
namespace {

struct ControlPanelLife : testing::Test, PanelBench {
    void SetUp() override {
        values.steeringLevel = 100;
        values.gasLevel = 200;
        values.brakeLevel = 300;
        values.joystickDriveLatch = true;
    }
    void expectStandingStraight() {
        EXPECT_EQ(panel.scrGas.value(), 10000);
        EXPECT_EQ(panel.scrBrake.value(), 10000);
        EXPECT_EQ(panel.hscSteering.value(), 5000);
        EXPECT_EQ(values.gasLevel, 10000);
        EXPECT_EQ(values.brakeLevel, 10000);
        EXPECT_EQ(values.steeringLevel, 5000);
        EXPECT_EQ(panel.slbGasLevel.caption(), "10000");
    }
};

TEST_F(ControlPanelLife, HasTheRangesAndStartsOfItsScales) {
    const auto expectScale = [](const Slider& bar, int minimum, int maximum, int start) {
        EXPECT_EQ(bar.minimum(), minimum) << bar.name();
        EXPECT_EQ(bar.maximum(), maximum) << bar.name();
        EXPECT_EQ(bar.value(), start) << bar.name();
    };
    expectScale(panel.scrGas, 0, 10000, 10000);
    expectScale(panel.scrBrake, 0, 10000, 10000);
    expectScale(panel.hscSteering, 4500, 5500, 5000);
    expectScale(panel.scrHeadUD, 0, 3500, 2000);
    expectScale(panel.hscHeadLR, 0, 4000, 2000);
    expectScale(panel.scrMouthUD, 0, 1200, 0);
    expectScale(panel.sldLR, 0, 4000, 2000);
    expectScale(panel.sldUD, 0, 3500, 2000);
    EXPECT_EQ(panel.scrGas.largeChange, 500);
}

TEST_F(ControlPanelLife, OffersTheFixedGestureWithTheInstallationsNeutralPositions) {
    gui.cHeadUpDown = 3600;
    gui.cHeadLeftRight = 3650;
    gui.cMouthUpDown = 2900;
    gui.cEyeUpDown = 3510;
    gui.cEyeLeftRight = 3490;
    logic.gesture();
    ASSERT_EQ(myRobot.operations().size(), 6U);
    EXPECT_EQ(myRobot.operations().front(), "MoveServosTimed 3900 3650 3400 3500 3500 4200 1000");
    EXPECT_EQ(myRobot.operations().back(), "MoveServosTimed 3600 3650 2900 0 3510 3490 2000");
    EXPECT_EQ(clock.nowMs(), 7000);
}

TEST_F(ControlPanelLife, OfAllBarsOnlyTheBrakesHasItsMaximumAtTheTop) {
    for (const Control* control : panel.controls()) {
        if (const auto* bar = dynamic_cast<const Slider*>(control)) {
            EXPECT_EQ(bar->maximumFirst, bar == &panel.scrBrake) << bar->name();
        }
    }
}

TEST_F(ControlPanelLife, ShowingThePanelTakesTheRobotWithoutGasOrBrake) {
    open();
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_TRUE(panel.shown());
    EXPECT_FALSE(panel.modal());
    expectStandingStraight();
    EXPECT_FALSE(values.joystickDriveLatch);
}

// A window system may tell of the activation late, or never.
TEST_F(ControlPanelLife, TheKeyThatShowsThePanelSetsTheLevelsByItself) {
    panel.onActivate = nullptr;
    open();
    expectStandingStraight();
}

TEST_F(ControlPanelLife, HidingThePanelLetsGoAndLeavesTheLevels) {
    open();
    values.gasLevel = 4000;
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(values.gasLevel, 4000);
    EXPECT_TRUE(values.joystickDriveLatch);
}

TEST_F(ControlPanelLife, AnyOtherCaptionHides) {
    gui.cmdShowControlPanel.setCaption("Panel");
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
}

TEST_F(ControlPanelLife, LoadingMakesTheWindowATopmostOneThatIsThreeQuartersOpaque) {
    EXPECT_FALSE(panel.style.layered);
    open();
    EXPECT_TRUE(panel.style.layered);
    EXPECT_EQ(panel.style.alpha, 192);
    EXPECT_TRUE(panel.style.topmost);
}

TEST_F(ControlPanelLife, LoadingPlacesTheWindowsCornerAtTheMiddleOfTheFloorPlansFrame) {
    gui.setArea({1000, 2000, 19200, 12000});
    gui.fraMapDisplay.setArea({300, 450, 6001, 4501});
    panel.setArea({0, 0, 3000, 1500});
    open();
    // Halves go to the even neighbour: 1000 + 300 + 3000.5 and 2000 + 450 + 2250.5.
    EXPECT_EQ(panel.area(), (Area{4300, 4700, 3000, 1500}));
}

TEST_F(ControlPanelLife, ThePlaceIsTakenBeforeTheWindowShows) {
    gui.setArea({1000, 2000, 100, 100});
    std::int32_t leftWhenShown = 0;
    panel.onShownChanged = [&] { leftWhenShown = panel.area().left; };
    open();
    EXPECT_EQ(leftWhenShown, 1000);
}

TEST_F(ControlPanelLife, APanelThatWasHiddenComesBackWhereItWasWithItsHeadBarsAsTheyWere) {
    open();
    panel.setArea({70, 80, 3000, 1500});
    panel.scrHeadUD.operatorMove(100);
    gui.cmdShowControlPanel.operatorClick();
    gui.setArea({5000, 5000, 100, 100});
    open();
    EXPECT_EQ(panel.area(), (Area{70, 80, 3000, 1500}));
    EXPECT_EQ(panel.scrHeadUD.value(), 100);
    expectStandingStraight();
}

TEST_F(ControlPanelLife, APanelThatWasClosedIsMadeAnewAndNoLevelOfTheHeadChangesByIt) {
    open();
    panel.scrHeadUD.operatorMove(100);
    panel.hscHeadLR.operatorMove(200);
    panel.scrMouthUD.operatorMove(300);
    key(38);
    panel.cmdClose.operatorClick();
    gui.setArea({5000, 6000, 100, 100});
    open();
    EXPECT_EQ(panel.area().left, 5000);
    EXPECT_EQ(panel.area().top, 6000);
    EXPECT_EQ(panel.scrHeadUD.value(), 2000);
    EXPECT_EQ(panel.hscHeadLR.value(), 2000);
    EXPECT_EQ(panel.scrMouthUD.value(), 0);
    EXPECT_EQ(panel.sldUD.value(), 2000);
    EXPECT_EQ(panel.sldLR.value(), 2000);
    EXPECT_EQ(logic.selectedAction(), "");
    EXPECT_EQ(values.headCmdUpDown, 100);
    EXPECT_EQ(values.headCmdLeftRight, 200);
    EXPECT_EQ(values.mouthCmd, 2950);
    expectStandingStraight();
}

TEST_F(ControlPanelLife, EachActivationSetsBarsAndLevels) {
    open();
    panel.scrGas.operatorMove(3000);
    panel.scrBrake.operatorMove(9000);
    panel.hscSteering.operatorMove(4600);
    panel.operatorActivate();
    expectStandingStraight();
}

TEST_F(ControlPanelLife, ActivationSetsTheLevelsWhereTheBarsStandThereAlready) {
    open();
    values.steeringLevel = 1;
    values.gasLevel = 2;
    values.brakeLevel = 3;
    panel.slbGasLevel.setCaption("2");
    panel.operatorActivate();
    expectStandingStraight();
}

TEST_F(ControlPanelLife, ActivationSetsTheLevelsAlsoWhileTheJoystickHoldsTheRobot) {
    open();
    panel.scrGas.operatorMove(3000);
    panel.scrBrake.operatorMove(3000);
    values.joystickActive = true;
    panel.operatorActivate();
    expectStandingStraight();
}

TEST_F(ControlPanelLife, ActivationLeavesHeadAndMouth) {
    open();
    panel.scrHeadUD.operatorMove(100);
    panel.scrMouthUD.operatorMove(300);
    panel.operatorActivate();
    EXPECT_EQ(values.headCmdUpDown, 100);
    EXPECT_EQ(values.mouthCmd, 2950);
}

TEST_F(ControlPanelLife, ThePanelsOwnCloseKeySuspendsTheDriver) {
    gui.teleoperationtask = std::make_shared<Teleoperation>(clock, values, gui, myRobot);
    gui.teleoperationtask->continue_();
    open();
    panel.cmdClose.operatorClick();
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
    EXPECT_FALSE(gui.teleoperationtask->active());
    EXPECT_TRUE(myRobot.asked("SuspendDrive 1"));
}

TEST_F(ControlPanelLife, TheCloseKeyLetsGoBeforeItSuspendsAndUnloadsLast) {
    gui.teleoperationtask = std::make_shared<Teleoperation>(clock, values, gui, myRobot);
    gui.teleoperationtask->continue_();
    open();
    bool activeAtCaption = true;
    bool driverActiveWhenHidden = true;
    gui.cmdShowControlPanel.onLook = [&] { activeAtCaption = values.manualPanelActive; };
    panel.onShownChanged = [&] { driverActiveWhenHidden = gui.teleoperationtask->active(); };
    panel.cmdClose.operatorClick();
    EXPECT_FALSE(activeAtCaption);
    EXPECT_FALSE(driverActiveWhenHidden);
}

TEST_F(ControlPanelLife, ClosingThePanelsWindowClearsTheFlagAlone) {
    gui.teleoperationtask = std::make_shared<Teleoperation>(clock, values, gui, myRobot);
    gui.teleoperationtask->continue_();
    open();
    panel.operatorClose();
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
    EXPECT_TRUE(gui.teleoperationtask->active());
    EXPECT_FALSE(values.joystickDriveLatch);
}

TEST_F(ControlPanelLife, APanelClosedByItsWindowIsMadeAnewToo) {
    open();
    panel.scrHeadUD.operatorMove(100);
    panel.operatorClose();
    gui.cmdShowControlPanel.operatorClick();  // the caption was left behind
    open();
    EXPECT_EQ(panel.scrHeadUD.value(), 2000);
}

}  // namespace
}  // namespace quorrin
