#include "console/joystick_rules.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorrin {
namespace {

JoystickState pressed(const std::vector<std::size_t>& buttons) {
    JoystickState stick;
    for (const std::size_t button : buttons) stick.buttons[button] = true;
    return stick;
}

JoystickState hat(int pov) {
    JoystickState stick;
    stick.pov = pov;
    return stick;
}

// The mouth after `events` states with that button.
int mouthAfter(int start, std::size_t button, int events) {
    ServoValues servos;
    servos.mouthCmd = start;
    for (int i = 0; i < events; ++i) moveMouth(pressed({button}), servos);
    return servos.mouthCmd.value();
}

// Up-down and left-right after `events` states with that hat.
ServoValues headAfter(int start, int pov, int events) {
    ServoValues servos;
    servos.headCmdUpDown = start;
    servos.headCmdLeftRight = start;
    for (int i = 0; i < events; ++i) moveHead(hat(pov), servos);
    return servos;
}

TEST(JoystickRules, TheStickTakesOverByTriggerAndButtonSixTogether) {
    EXPECT_TRUE(takesOver(pressed({0, 6})));
    EXPECT_FALSE(takesOver(pressed({0})));
    EXPECT_FALSE(takesOver(pressed({6})));
    EXPECT_FALSE(takesOver(pressed({1, 6})));
}

TEST(JoystickRules, TheStickLetsGoByButtonsOneAndSixTogether) {
    EXPECT_TRUE(givesBack(pressed({1, 6})));
    EXPECT_FALSE(givesBack(pressed({1})));
    EXPECT_FALSE(givesBack(pressed({6})));
    EXPECT_FALSE(givesBack(pressed({0, 6})));
}

TEST(JoystickRules, TheAxesAreTheLevelsAsTheyStand) {
    JoystickState stick;
    stick.x = 1234;
    stick.y = 9876;
    stick.slider = 42;
    LevelValues levels;
    commandLevels(stick, levels);
    EXPECT_EQ(levels.steeringLevel, 1234);
    EXPECT_EQ(levels.joystickY, 9876);
    EXPECT_EQ(levels.gasLevel, 42);
}

TEST(JoystickRules, TheTriggerIsTheBrake) {
    LevelValues levels;
    commandLevels(pressed({0}), levels);
    EXPECT_EQ(levels.brakeLevel, 0);
    commandLevels(pressed({}), levels);
    EXPECT_EQ(levels.brakeLevel, 10000);
}

TEST(JoystickRules, ButtonOneCentresTheHead) {
    ServoValues servos;
    servos.headCmdUpDown = 3333;
    servos.headCmdLeftRight = 7;
    centreHead(pressed({0, 2, 3, 6}), servos);
    EXPECT_EQ(servos.headCmdUpDown, 3333);
    centreHead(pressed({1}), servos);
    EXPECT_EQ(servos.headCmdUpDown, 2000);
    EXPECT_EQ(servos.headCmdLeftRight, 2000);
}

TEST(JoystickRules, ButtonTwoFlipsTheAvoidanceEachTime) {
    LevelValues levels;
    flipAvoidance(pressed({2}), levels);
    EXPECT_TRUE(levels.caEnabled);
    flipAvoidance(pressed({1, 3}), levels);
    EXPECT_TRUE(levels.caEnabled);
    flipAvoidance(pressed({2}), levels);
    EXPECT_FALSE(levels.caEnabled);
}

TEST(JoystickRules, TheMouthMovesByAHundredAndStopsAtItsLimits) {
    EXPECT_EQ(mouthAfter(3400, 3, 1), 3500);
    EXPECT_EQ(mouthAfter(3400, 5, 1), 3300);
    EXPECT_EQ(mouthAfter(3599, 3, 9), 3699);
    EXPECT_EQ(mouthAfter(3600, 3, 9), 3600);
    EXPECT_EQ(mouthAfter(2801, 5, 9), 2701);
    EXPECT_EQ(mouthAfter(2800, 5, 9), 2800);
}

TEST(JoystickRules, OtherButtonsLeaveTheMouthAlone) {
    for (const std::size_t button : {0U, 1U, 2U, 4U, 6U}) EXPECT_EQ(mouthAfter(3400, button, 3), 3400);
}

TEST(JoystickRules, BothMouthButtonsCancelEachOther) {
    ServoValues servos;
    servos.mouthCmd = 3400;
    moveMouth(pressed({3, 5}), servos);
    EXPECT_EQ(servos.mouthCmd, 3400);
}

TEST(JoystickRules, TheHatMovesTheHeadInItsFourStraightDirections) {
    EXPECT_EQ(headAfter(2000, 0, 1).headCmdUpDown, 2100);
    EXPECT_EQ(headAfter(2000, 0, 1).headCmdLeftRight, 2000);
    EXPECT_EQ(headAfter(2000, 9000, 1).headCmdLeftRight, 2100);
    EXPECT_EQ(headAfter(2000, 9000, 1).headCmdUpDown, 2000);
    EXPECT_EQ(headAfter(2000, 18000, 1).headCmdUpDown, 1900);
    EXPECT_EQ(headAfter(2000, 18000, 1).headCmdLeftRight, 2000);
    EXPECT_EQ(headAfter(2000, 27000, 1).headCmdLeftRight, 1900);
    EXPECT_EQ(headAfter(2000, 27000, 1).headCmdUpDown, 2000);
}

TEST(JoystickRules, ACentredOrSlantedHatMovesNothing) {
    for (const int pov : {-1, 65535, 4500, 13500, 22500, 31500, 36000, 8999}) {
        EXPECT_EQ(headAfter(2000, pov, 1).headCmdUpDown, 2000) << pov;
        EXPECT_EQ(headAfter(2000, pov, 1).headCmdLeftRight, 2000) << pov;
    }
}

TEST(JoystickRules, TheHeadStopsAtItsLimitsOnTheGridOfHundreds) {
    EXPECT_EQ(headAfter(2000, 0, 50).headCmdUpDown, 3400);
    EXPECT_EQ(headAfter(2000, 18000, 50).headCmdUpDown, 100);
    EXPECT_EQ(headAfter(2000, 9000, 50).headCmdLeftRight, 3900);
    EXPECT_EQ(headAfter(2000, 27000, 50).headCmdLeftRight, 100);
}

TEST(JoystickRules, OffTheGridTheLastStepGoesBeyondTheLimit) {
    EXPECT_EQ(headAfter(3399, 0, 50).headCmdUpDown, 3499);
    EXPECT_EQ(headAfter(101, 18000, 50).headCmdUpDown, 1);
    EXPECT_EQ(headAfter(3899, 9000, 50).headCmdLeftRight, 3999);
    EXPECT_EQ(headAfter(101, 27000, 50).headCmdLeftRight, 1);
}

TEST(JoystickRules, TheGearIsTheLastOfTheGearButtons) {
    const auto gear = [](const std::vector<std::size_t>& buttons, int count) {
        JoystickValues values;
        values.joystickGear = 77;
        chooseGear(pressed(buttons), count, values);
        return values.joystickGear.value();
    };
    EXPECT_EQ(gear({6}, 12), 1);
    EXPECT_EQ(gear({7}, 12), 2);
    EXPECT_EQ(gear({8}, 12), 3);
    EXPECT_EQ(gear({9}, 12), 10);
    EXPECT_EQ(gear({6, 8}, 12), 3);
    EXPECT_EQ(gear({0, 5, 10}, 12), 77);
}

TEST(JoystickRules, AGearButtonThatTheDeviceLacksIsNotLookedAt) {
    JoystickValues values;
    chooseGear(pressed({6, 9}), 9, values);
    EXPECT_EQ(values.joystickGear, 1);
    chooseGear(pressed({9}), 10, values);
    EXPECT_EQ(values.joystickGear, 10);
    chooseGear(pressed({6}), 6, values);
    EXPECT_EQ(values.joystickGear, 10);
    chooseGear(pressed({6}), 99, values);
    EXPECT_EQ(values.joystickGear, 1);
}

}  // namespace
}  // namespace quorrin
