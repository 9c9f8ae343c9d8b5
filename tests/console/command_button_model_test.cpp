// The push button under the pointer, in virtual time: mouse and cursor in, events and drawings out.
#include "console/command_button_model.h"

#include <gtest/gtest.h>

#include <string>

#include "support/command_bench.h"

namespace quorrin {
namespace {

struct CommandModel : CommandBench {};

TEST_F(CommandModel, StartsNormalUnpressedAndUnwatched) {
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(button.pressState(), 0);
    EXPECT_FALSE(button.watching());
}

TEST_F(CommandModel, TheDrawingStatesHaveTheirNumbers) {
    EXPECT_EQ(static_cast<int>(ButtonState::normal), 0);
    EXPECT_EQ(static_cast<int>(ButtonState::pressed), 1);
    EXPECT_EQ(static_cast<int>(ButtonState::hover), 3);
}

TEST_F(CommandModel, AMoveOverItShowsHoverDrawsOnceAndStartsTheWatch) {
    button.mouseMove(kOver);
    EXPECT_EQ(button.state(), ButtonState::hover);
    EXPECT_EQ(drawings, 1);
    EXPECT_TRUE(watch.enabled());
}

TEST_F(CommandModel, EveryMoveIsToldButOnlyTheFirstIsDrawn) {
    button.mouseMove(kOver);
    button.mouseMove(kOver);
    button.mouseMove(kOver);
    EXPECT_EQ(told, "move move move");
    EXPECT_EQ(drawings, 1);
}

TEST_F(CommandModel, AMoveOfAPressedButtonIsToldAndChangesNothing) {
    button.mouseDown(kLeft);
    const int before = drawings;
    button.mouseMove(kOver);
    EXPECT_EQ(button.state(), ButtonState::pressed);
    EXPECT_EQ(drawings, before);
    EXPECT_EQ(told, "down move");
}

TEST_F(CommandModel, LeavingQuicklyGivesExactlyOneMouseOutAtTheNextPeriod) {
    button.mouseMove(kOver);
    told.clear();
    clock.runFor(20);
    cursorInside = false;
    clock.runFor(29);
    EXPECT_EQ(told, "");
    clock.runFor(1);
    EXPECT_EQ(told, "out");
    clock.runFor(10000);
    EXPECT_EQ(told, "out");
}

TEST_F(CommandModel, TheEndOfTheHoverIsDrawnNormalWithTheWatchOff) {
    button.mouseMove(kOver);
    cursorInside = false;
    drawings = 0;
    clock.runFor(50);
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(drawings, 1);
    EXPECT_FALSE(watch.enabled());
}

TEST_F(CommandModel, TheHoverLastsAsLongAsThePointerStays) {
    button.mouseMove(kOver);
    clock.runFor(60000);
    EXPECT_EQ(button.state(), ButtonState::hover);
    EXPECT_EQ(told, "move");
}

TEST_F(CommandModel, ComingBackAfterLeavingHoversAgain) {
    button.mouseMove(kOver);
    cursorInside = false;
    clock.runFor(50);
    cursorInside = true;
    button.mouseMove(kOver);
    EXPECT_EQ(button.state(), ButtonState::hover);
    EXPECT_TRUE(watch.enabled());
}

TEST_F(CommandModel, AtRestNoTimerRuns) {
    EXPECT_FALSE(watch.enabled());
    button.mouseMove(kOver);
    button.mouseDown(kLeft);
    button.mouseUp(kLeft);
    cursorInside = false;
    clock.runFor(50);
    EXPECT_FALSE(watch.enabled());
}

TEST_F(CommandModel, LeavingWhilePressedIsSeenByTheWatchToo) {
    button.mouseMove(kOver);
    button.mouseDown(kLeft);
    cursorInside = false;
    told.clear();
    clock.runFor(50);
    EXPECT_EQ(told, "out");
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(button.pressState(), 1);
}

TEST_F(CommandModel, AReleaseOutsideDoesNotLeaveTheHoverBehindNorTellASecondMouseOut) {
    button.mouseMove(kOver);
    button.mouseDown(kLeft);
    cursorInside = false;
    clock.runFor(50);
    told.clear();
    button.mouseUp(kFarLeft);
    EXPECT_EQ(button.state(), ButtonState::hover);
    clock.runFor(50);
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(told, "up");
}

TEST_F(CommandModel, MovesOutsideOfAPressedButtonBringNoSecondMouseOut) {
    button.mouseMove(kOver);
    button.mouseDown(kLeft);
    cursorInside = false;
    clock.runFor(50);
    button.mouseMove({MouseButton::none, 0, 500, 10});
    told.clear();
    button.mouseUp(kFarLeft);
    clock.runFor(50);
    EXPECT_EQ(told, "up");
}

TEST_F(CommandModel, TheLeftButtonPressesWithOneDrawing) {
    button.mouseDown(kLeft);
    EXPECT_EQ(button.state(), ButtonState::pressed);
    EXPECT_EQ(button.pressState(), 1);
    EXPECT_EQ(drawings, 1);
    EXPECT_EQ(told, "down");
}

TEST_F(CommandModel, OtherMouseButtonsDoNotPress) {
    button.mouseDown(kRight);
    button.mouseDown({MouseButton::middle, 0, 10, 10});
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(told, "");
}

TEST_F(CommandModel, APressedButtonIsNotPressedAgain) {
    button.mouseDown(kLeft);
    button.mouseDown(kLeft);
    EXPECT_EQ(told, "down");
    EXPECT_EQ(drawings, 1);
}

TEST_F(CommandModel, TheFaceStandsShiftedWhilePressedOnly) {
    const ButtonFace rest = button.face();
    button.mouseDown(kLeft);
    EXPECT_EQ(button.face().lbl.left, rest.lbl.left + 1);
    EXPECT_EQ(button.face().lbl.top, rest.lbl.top + 1);
    button.mouseUp(kLeft);
    EXPECT_EQ(button.face().lbl, rest.lbl);
}

TEST_F(CommandModel, TheReleaseShowsHoverThenTellsThenClicks) {
    button.mouseDown(kLeft);
    drawings = 0;
    button.mouseUp(kLeft);
    EXPECT_EQ(button.state(), ButtonState::hover);
    EXPECT_EQ(button.pressState(), 2);
    EXPECT_EQ(drawings, 1);
    EXPECT_EQ(told, "down up click");
}

TEST_F(CommandModel, ItCanBePressedAgainAfterARelease) {
    button.mouseDown(kLeft);
    button.mouseUp(kLeft);
    button.mouseDown(kLeft);
    EXPECT_EQ(button.pressState(), 1);
    EXPECT_EQ(told, "down up click down");
}

TEST_F(CommandModel, AReleaseOutsideIsNoClick) {
    button.mouseDown(kLeft);
    button.mouseUp(kFarLeft);
    EXPECT_EQ(told, "down up");
}

TEST_F(CommandModel, AnyMouseButtonsReleaseIsAMouseUp) {
    button.mouseUp(kRight);
    EXPECT_EQ(told, "up");
    EXPECT_EQ(button.state(), ButtonState::hover);
    EXPECT_EQ(button.pressState(), 2);
}

TEST_F(CommandModel, TheStateIsSetBeforeItsEvent) {
    std::string states;
    const auto note = [&](const MouseStroke&) {
        states +=
            std::to_string(static_cast<int>(button.state())) + std::to_string(button.pressState()) + " ";
    };
    button.onMouseDown = note;
    button.onMouseUp = note;
    button.mouseDown(kLeft);
    button.mouseUp(kLeft);
    EXPECT_EQ(states, "11 32 ");
}

TEST_F(CommandModel, AMoveHoversBeforeItIsTold) {
    ButtonState seen = ButtonState::normal;
    button.onMouseMove = [&](const MouseStroke&) { seen = button.state(); };
    button.mouseMove(kOver);
    EXPECT_EQ(seen, ButtonState::hover);
}

TEST_F(CommandModel, TheSecondOfTwoQuickPressesPressesToo) {
    button.mouseDown(kLeft);
    button.mouseUp(kLeft);
    button.mouseDoubleClick(kLeft);
    button.mouseUp(kLeft);
    EXPECT_EQ(told, "down up click down double up click");
}

TEST_F(CommandModel, EventsCarryButtonShiftAndPosition) {
    MouseStroke seen;
    button.onMouseDown = [&](const MouseStroke& stroke) { seen = stroke; };
    button.mouseDown({MouseButton::left, kShiftKey | kAltKey, 7, 9});
    EXPECT_EQ(seen.button, MouseButton::left);
    EXPECT_EQ(seen.shift, kShiftKey | kAltKey);
    EXPECT_EQ(seen.x, 7);
    EXPECT_EQ(seen.y, 9);
}

TEST_F(CommandModel, PositionsOnTheCaptionAreTurnedIntoTheButtonsOwn) {
    MouseStroke seen;
    button.onMouseMove = [&](const MouseStroke& stroke) { seen = stroke; };
    button.mouseMove({MouseButton::none, 0, 3, 4}, ButtonPart::lbl);
    EXPECT_EQ(seen.x, button.face().lbl.left + 3);
    EXPECT_EQ(seen.y, button.face().lbl.top + 4);
}

TEST_F(CommandModel, PositionsOnTheIconAreTurnedIntoTheButtonsOwn) {
    button.setIcon(5);
    MouseStroke seen;
    button.onMouseMove = [&](const MouseStroke& stroke) { seen = stroke; };
    button.mouseMove({MouseButton::none, 0, 3, 4}, ButtonPart::imgButton);
    EXPECT_EQ(seen.x, button.face().imgButton.left + 3);
    EXPECT_EQ(seen.y, button.face().imgButton.top + 4);
}

TEST_F(CommandModel, AClickOnCaptionOrIconIsAClickOnTheButton) {
    button.setIcon(5);
    for (const ButtonPart part : {ButtonPart::lbl, ButtonPart::imgButton}) {
        told.clear();
        button.mouseDown({MouseButton::left, 0, 1, 1}, part);
        button.mouseUp({MouseButton::left, 0, 1, 1}, part);
        EXPECT_EQ(told, "down up click");
    }
}

TEST_F(CommandModel, AHandlersFaultPassesThroughWithTheStateSet) {
    button.onMouseDown = [](const MouseStroke&) { throw ProgramError("broken"); };
    EXPECT_THROW(button.mouseDown(kLeft), ProgramError);
    EXPECT_EQ(button.pressState(), 1);
}

}  // namespace
}  // namespace quorrin
