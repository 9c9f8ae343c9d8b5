// The push button under the keyboard.
#include "console/command_button_model.h"

#include <gtest/gtest.h>

#include <string>

#include "support/command_bench.h"

namespace quorrin {
namespace {

struct CommandKeys : CommandBench {};

TEST_F(CommandKeys, AKeyGoesDownPressesAndComesUpWithAClickInOrder) {
    button.keyDown(key('G'));
    EXPECT_EQ(told, "keydown71 down");
    EXPECT_EQ(button.state(), ButtonState::pressed);
    button.keyUp(key('G'));
    EXPECT_EQ(told, "keydown71 down keyup71 up keypress71 click");
    EXPECT_EQ(button.pressState(), 2);
}

TEST_F(CommandKeys, AKeysPressIsTheLeftMouseButtons) {
    MouseStroke seen;
    button.onMouseDown = [&](const MouseStroke& stroke) { seen = stroke; };
    button.keyDown(key('G'));
    EXPECT_EQ(seen.button, MouseButton::left);
}

TEST_F(CommandKeys, ARepeatedKeyDownIsToldAndPressesOnce) {
    button.keyDown(key(' '));
    button.keyDown(key(' ', true));
    EXPECT_EQ(told, "keydown32 down keydown32");
}

TEST_F(CommandKeys, ARepeatedKeyUpIsNoRelease) {
    button.keyDown(key(' '));
    told.clear();
    EXPECT_TRUE(button.keyUp(key(' ', true)));
    EXPECT_EQ(told, "");
    EXPECT_EQ(button.pressState(), 1);
}

TEST_F(CommandKeys, AReleaseOfAKeyThatWentDownElsewhereIsNotForTheButton) {
    EXPECT_FALSE(button.keyUp(key(13)));
    EXPECT_EQ(told, "");
}

TEST_F(CommandKeys, RepeatsOfAKeyThatWentDownElsewhereDoNotPress) {
    button.keyDown(key(13, true));
    EXPECT_EQ(told, "");
    EXPECT_EQ(button.pressState(), 0);
}

TEST_F(CommandKeys, EachOfTwoKeysClicksWhenItComesUp) {
    button.keyDown(key('A'));
    button.keyDown(key('B'));
    button.keyUp(key('A'));
    button.keyUp(key('B'));
    EXPECT_EQ(told, "keydown65 down keydown66 keyup65 up keypress65 click keyup66 up keypress66 click");
}

TEST_F(CommandKeys, OnlyCharactersEnterAndEditingKeysPress) {
    const auto presses = [this](KeyKind kind) {
        const bool taken = button.keyDown({kind, 1, 0, false, 1});
        button.keyUp({kind, 1, 0, false, 1});
        return taken;
    };
    for (const KeyKind kind : {KeyKind::character, KeyKind::enter, KeyKind::edit}) EXPECT_TRUE(presses(kind));
    told.clear();
    for (const KeyKind kind : {KeyKind::escape, KeyKind::tab, KeyKind::navigation, KeyKind::function,
                               KeyKind::modifier, KeyKind::shortcut})
        EXPECT_FALSE(presses(kind));
    EXPECT_EQ(told, "");
}

TEST_F(CommandKeys, AKeysReleaseDoesNotLeaveTheHoverBehindNorTellOfAPointer) {
    button.keyDown(key(' '));
    button.keyUp(key(' '));
    told.clear();
    cursorInside = false;
    clock.runFor(50);
    EXPECT_EQ(button.state(), ButtonState::normal);
    EXPECT_EQ(told, "");
}

TEST_F(CommandKeys, APointerThatComesOverAfterAKeysReleaseTellsWhenItLeaves) {
    button.keyDown(key(' '));
    button.keyUp(key(' '));
    button.mouseMove(kOver);
    told.clear();
    cursorInside = false;
    clock.runFor(50);
    EXPECT_EQ(told, "out");
}

}  // namespace
}  // namespace quorrin
