// The control panel's keys and the routine that carries their actions out.
#include <gtest/gtest.h>

#include "support/panel_bench.h"

namespace quorrin {
namespace {

constexpr int kUp = 38, kDown = 40, kLeft = 37, kRight = 39, kSpace = 32;
constexpr int kHome = 36, kEnd = 35, kDelete = 46, kPageDown = 34, kBackspace = 8;
constexpr int kLetter = 65;

struct ControlPanelKeys : testing::Test, PanelBench {
    void SetUp() override { open(); }
};

TEST_F(ControlPanelKeys, EachKeyNamesItsAction) {
    const std::pair<int, const char*> all[] = {
        {kUp, "GasUp"}, {kDown, "GasDown"}, {kLeft, "TurnLeft"}, {kRight, "TurnRight"}, {kSpace, "Stop"},
        {kHome, "Up"},  {kEnd, "Down"},     {kDelete, "Left"},   {kPageDown, "Right"},  {kBackspace, "Reset"},
    };
    for (const auto& [code, action] : all) {
        key(code);
        EXPECT_EQ(logic.selectedAction(), action);
    }
}

TEST_F(ControlPanelKeys, GasKeysAreClicksOfTheGasButtons) {
    panel.scrBrake.operatorMove(0);
    key(kUp);
    EXPECT_EQ(values.gasLevel, 9500);
    EXPECT_EQ(values.brakeLevel, 10000);
    key(kDown);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(ControlPanelKeys, SpaceIsTheBrake) {
    key(kUp);
    key(kSpace);
    EXPECT_EQ(values.brakeLevel, 0);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(ControlPanelKeys, HeadKeysAreClicksOfTheHeadButtons) {
    key(kHome);
    EXPECT_EQ(values.headCmdUpDown, 2100);
    key(kEnd);
    EXPECT_EQ(values.headCmdUpDown, 2000);
    key(kDelete);
    EXPECT_EQ(values.headCmdLeftRight, 1900);
    key(kPageDown);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
    key(kPageDown);
    key(kBackspace);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
}

TEST_F(ControlPanelKeys, ASteeringKeyHeldSteersUntilOneReleaseThatIsReal) {
    for (int repeat = 0; repeat < 3; ++repeat) {
        key(kLeft);
        EXPECT_EQ(values.steeringLevel, 4500);
    }
    keyUp(kLeft);
    EXPECT_EQ(values.steeringLevel, 5000);
    key(kRight);
    EXPECT_EQ(values.steeringLevel, 5500);
    keyUp(kRight);
    EXPECT_EQ(values.steeringLevel, 5000);
}

TEST_F(ControlPanelKeys, TheFirstKeysReleaseCentresThoughTheOtherIsStillHeld) {
    key(kLeft);
    key(kRight);
    EXPECT_EQ(values.steeringLevel, 5500);
    keyUp(kLeft);
    EXPECT_EQ(values.steeringLevel, 5000);
}

TEST_F(ControlPanelKeys, ReleasesOfOtherKeysDoNothing) {
    key(kLeft);
    for (const int code : {kUp, kDown, kSpace, kHome, kEnd, kDelete, kPageDown, kBackspace, kLetter})
        keyUp(code);
    EXPECT_EQ(values.steeringLevel, 4500);
}

TEST_F(ControlPanelKeys, AnUnrelatedKeyRunsTheLastActionAgain) {
    key(kUp);
    key(kLetter);
    EXPECT_EQ(values.gasLevel, 9000);
    panel.hscHeadLR.operatorMove(100);
    key(kBackspace);
    panel.hscHeadLR.operatorMove(100);
    key(kLetter);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
}

TEST_F(ControlPanelKeys, AnUnrelatedKeyBeforeAnyOtherDoesNothingButStopTheTimer) {
    values.headCmdUpDown = 7;
    key(kLetter);
    EXPECT_FALSE(panel.tmrButton.running());
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.headCmdUpDown, 7);
}

TEST_F(ControlPanelKeys, OfAPanelThatIsNotShownAreNotTaken) {
    gui.cmdShowControlPanel.operatorClick();
    key(kUp);
    keyUp(kLeft);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(logic.selectedAction(), "");
}

TEST_F(ControlPanelKeys, TheTimerTicksOnceHalfASecondAfterTheLoadAndNeverAgain) {
    EXPECT_TRUE(panel.tmrButton.running());
    EXPECT_EQ(panel.tmrButton.interval(), 500);
    clock.runFor(499);
    EXPECT_TRUE(panel.tmrButton.running());
    clock.runFor(1);
    EXPECT_FALSE(panel.tmrButton.running());
    EXPECT_EQ(panel.tmrButton.interval(), 50);
    EXPECT_EQ(values.gasLevel, 10000);
    key(kUp);
    clock.runFor(5000);
    EXPECT_EQ(values.gasLevel, 9500);
    EXPECT_FALSE(panel.tmrButton.running());
}

TEST_F(ControlPanelKeys, AKeyWithinTheFirstHalfSecondTakesTheTimersTickAway) {
    clock.runFor(300);
    key(kUp);
    EXPECT_EQ(values.gasLevel, 9500);
    clock.runFor(5000);
    EXPECT_EQ(values.gasLevel, 9500);
}

TEST_F(ControlPanelKeys, TheTimerRunsAgainAfterEachLoadAndNotAfterAHide) {
    clock.runFor(1000);
    gui.cmdShowControlPanel.operatorClick();
    open();
    EXPECT_FALSE(panel.tmrButton.running());
    panel.cmdClose.operatorClick();
    open();
    EXPECT_TRUE(panel.tmrButton.running());
    EXPECT_EQ(panel.tmrButton.interval(), 500);
}

TEST_F(ControlPanelKeys, APanelClosedWithinItsFirstHalfSecondLeavesNoTimerBehind) {
    panel.cmdClose.operatorClick();
    EXPECT_FALSE(panel.tmrButton.running());
}

TEST_F(ControlPanelKeys, WhatIsPendingRunsBeforeTheActionWhichIsReadAfterIt) {
    // A second key waits when the first one comes: it is carried out, and then carried out again.
    int gasSeenByPending = 0;
    clock.arriveAt(clock.nowMs(), [&] {
        gasSeenByPending = values.gasLevel;
        key(kHome);
    });
    key(kUp);
    EXPECT_EQ(gasSeenByPending, 10000);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.headCmdUpDown, 2200);
}

TEST_F(ControlPanelKeys, ManyThousandKeysAtOneInstantAllHaveTheirEffect) {
    for (int i = 0; i < 50'000; ++i) clock.arriveAt(10, [&] { key(kUp); });
    clock.runFor(20);
    EXPECT_EQ(values.gasLevel, 0);
}

}  // namespace
}  // namespace quorrin
