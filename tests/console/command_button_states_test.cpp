// The push button disabled, hidden, let go, and its properties set.
#include "console/command_button_model.h"

#include <gtest/gtest.h>

#include <string>

#include "support/command_bench.h"

namespace quorrin {
namespace {

struct CommandStates : CommandBench {};

TEST_F(CommandStates, ADisabledButtonTakesNoHoverAndNoEvent) {
    button.setEnabled(false);
    drawings = 0;
    button.mouseMove(kOver);
    button.mouseDown(kLeft);
    button.mouseUp(kLeft);
    button.mouseDoubleClick(kLeft);
    EXPECT_FALSE(button.keyDown(key(' ')));
    EXPECT_FALSE(button.keyUp(key(' ')));
    button.press();
    clock.runFor(1000);
    EXPECT_EQ(told, "");
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(button.pressState(), 0);
    EXPECT_EQ(drawings, 0);
    EXPECT_FALSE(watch.enabled());
}

TEST_F(CommandStates, DisablingAHoveredButtonEndsTheHoverWithoutAnEvent) {
    button.mouseMove(kOver);
    told.clear();
    button.setEnabled(false);
    cursorInside = false;
    clock.runFor(1000);
    EXPECT_EQ(told, "");
    EXPECT_FALSE(watch.enabled());
    button.setEnabled(true);
    EXPECT_EQ(button.cell(), ButtonState::normal);
}

TEST_F(CommandStates, DisablingAPressedButtonReleasesItFirst) {
    button.mouseDown(kLeft);
    button.setEnabled(false);
    EXPECT_EQ(told, "down up");
    button.mouseUp(kLeft);
    EXPECT_EQ(told, "down up");
    button.setEnabled(true);
    button.mouseDown(kLeft);
    EXPECT_EQ(told, "down up down");
}

TEST_F(CommandStates, AHandlerThatDisablesTheButtonEndsTheEventsOfThatKey) {
    button.onKeyUp = [this](const KeyStroke&) { button.setEnabled(false); };
    button.keyDown(key(' '));
    told.clear();
    button.keyUp(key(' '));
    EXPECT_EQ(told, "up");
}

TEST_F(CommandStates, EnabledDrawsAndChoosesTheCell) {
    button.setEnabled(false);
    EXPECT_EQ(button.cell(), ButtonState::disabled);
    EXPECT_EQ(drawings, 1);
    button.setEnabled(true);
    EXPECT_EQ(button.cell(), ButtonState::normal);
    EXPECT_EQ(drawings, 2);
}

TEST_F(CommandStates, EveryPropertyIsStoredAndDrawn) {
    button.setCaption("Talk");
    EXPECT_EQ(button.properties().caption, "Talk");
    button.setFontColor(rgb(1, 2, 3));
    EXPECT_EQ(button.properties().fontColor, rgb(1, 2, 3));
    button.setButtonLook(4);
    EXPECT_EQ(button.properties().buttonLook, 4);
    button.setIcon(7);
    EXPECT_EQ(button.properties().icon, 7);
    button.setIconAlign(kIconRight);
    EXPECT_EQ(button.properties().iconAlign, kIconRight);
    button.setFont({"Inter", 11, true, false});
    EXPECT_EQ(button.properties().font.family, "Inter");
    EXPECT_EQ(drawings, 6);
}

TEST_F(CommandStates, AnEmptyPictureHidesTheIconAndLaysOutWithoutIt) {
    const ButtonFace without = button.face();
    button.setIcon(7);
    EXPECT_TRUE(button.imgButtonVisible());
    EXPECT_NE(button.face().lbl, without.lbl);
    button.setIcon(0);
    EXPECT_FALSE(button.imgButtonVisible());
    EXPECT_EQ(button.face().lbl, without.lbl);
    EXPECT_TRUE(button.face().imgButton.empty());
}

TEST_F(CommandStates, LettingGoReleasesAPressedButtonWithoutAClick) {
    button.keyDown(key(' '));
    told.clear();
    button.letGo();
    EXPECT_EQ(told, "up");
    EXPECT_FALSE(button.keyUp(key(' ')));
    EXPECT_EQ(told, "up");
}

TEST_F(CommandStates, LettingGoOfAButtonAtRestTellsNothing) {
    button.letGo();
    EXPECT_EQ(told, "");
    EXPECT_EQ(drawings, 0);
}

TEST_F(CommandStates, AMouseReleaseAfterLettingGoIsNoClick) {
    button.mouseDown(kLeft);
    button.letGo();
    told.clear();
    button.mouseUp(kLeft);
    EXPECT_EQ(told, "up");
}

TEST_F(CommandStates, AButtonThatIsNoLongerSeenIsReleasedUnwatchedAndNormal) {
    button.mouseMove(kOver);
    button.mouseDown(kLeft);
    told.clear();
    button.gone();
    EXPECT_EQ(told, "up out");
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_FALSE(watch.enabled());
}

TEST_F(CommandStates, APressWithoutMouseOrKeyboardIsWhole) {
    button.press();
    EXPECT_EQ(told, "down up click");
    EXPECT_EQ(button.pressState(), 2);
}

TEST_F(CommandStates, ItWorksWithoutAnybodyListening) {
    CommandButtonModel silent;
    silent.mouseMove(kOver);
    silent.mouseDown(kLeft);
    silent.mouseUp(kLeft);
    silent.watchTick(false);
    EXPECT_EQ(silent.state(), ButtonState::normal);
}

}  // namespace
}  // namespace quorrin
