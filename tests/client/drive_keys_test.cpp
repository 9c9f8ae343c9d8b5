// Keys and joystick to levels.
#include "client/drive_keys.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

const HeldKeys kNone;

HeldKeys held(bool HeldKeys::*key) {
    HeldKeys keys;
    keys.*key = true;
    return keys;
}

TEST(DriveKeys, NoKeyIsNeutral) {
    EXPECT_EQ(stepByKeys({100, 0, 0, 1000, 3000, 3800, 0}, kNone),
              (DriveFields{5000, 10000, 10000, 1000, 3000, 3800, 0}));
}

TEST(DriveKeys, ForwardGivesMoreGasStepByStepAndNeverTheUnguardedLittle) {
    DriveFields levels = stepByKeys({}, held(&HeldKeys::forward));
    EXPECT_EQ(levels.gas, 8500);
    levels = stepByKeys(levels, held(&HeldKeys::forward));
    EXPECT_EQ(levels.gas, 8000);
    for (int i = 0; i < 30; ++i) levels = stepByKeys(levels, held(&HeldKeys::forward));
    EXPECT_EQ(levels.gas, 0);
}

TEST(DriveKeys, BrakeTakesTheGasAndBrakesAlsoAgainstForward) {
    HeldKeys both = held(&HeldKeys::forward);
    both.brake = true;
    const DriveFields levels = stepByKeys({5000, 3000, 10000}, both);
    EXPECT_EQ(levels.gas, 10000);
    EXPECT_EQ(levels.brake, 0);
}

TEST(DriveKeys, LeftAndRightTurnFurtherStepByStepUpToTheEnds) {
    DriveFields levels = stepByKeys({}, held(&HeldKeys::left));
    EXPECT_EQ(levels.steering, 4500);
    for (int i = 0; i < 30; ++i) levels = stepByKeys(levels, held(&HeldKeys::left));
    EXPECT_EQ(levels.steering, kSteeringScale.lowest);
    levels = stepByKeys(levels, held(&HeldKeys::right));
    EXPECT_EQ(levels.steering, 5500) << "the other way begins at straight";
    for (int i = 0; i < 30; ++i) levels = stepByKeys(levels, held(&HeldKeys::right));
    EXPECT_EQ(levels.steering, 10000);
}

TEST(DriveKeys, BothWaysAtOnceAreStraight) {
    HeldKeys both = held(&HeldKeys::left);
    both.right = true;
    EXPECT_EQ(stepByKeys({500}, both).steering, 5000);
}

TEST(DriveKeys, HeadAndMouthGoOnStayAndStopAtTheirEnds) {
    DriveFields levels;
    HeldKeys keys;
    keys.headUp = keys.headRight = keys.mouthOpen = true;
    levels = stepByKeys(levels, keys);
    EXPECT_EQ(levels.headUpDown, 2100);
    EXPECT_EQ(levels.headLeftRight, 2100);
    EXPECT_EQ(levels.mouth, 3500);
    for (int i = 0; i < 30; ++i) levels = stepByKeys(levels, keys);
    EXPECT_EQ(levels.headUpDown, 3500);
    EXPECT_EQ(levels.headLeftRight, 4000);
    EXPECT_EQ(levels.mouth, 3850);
    keys = {};
    keys.headDown = keys.headLeft = keys.mouthClose = true;
    for (int i = 0; i < 60; ++i) levels = stepByKeys(levels, keys);
    EXPECT_EQ(levels.headUpDown, 1);
    EXPECT_EQ(levels.headLeftRight, 1);
    EXPECT_EQ(levels.mouth, 2650);
}

JoystickState stickAt(int x, int slider) {
    JoystickState stick;
    stick.x = x;
    stick.slider = slider;
    return stick;
}

TEST(DriveStick, SteersGivesGasAndBrakesByTheTrigger) {
    JoystickState stick = stickAt(7000, 4000);
    DriveFields levels = stepByStick({}, {}, stick, true);
    EXPECT_EQ(levels.steering, 7000);
    EXPECT_EQ(levels.gas, 4000);
    EXPECT_EQ(levels.brake, 10000);
    stick.buttons[0] = true;
    EXPECT_EQ(stepByStick(levels, {}, stick, true).brake, 0);
}

TEST(DriveStick, ALittleGasIsNone) {
    EXPECT_EQ(stepByStick({}, {}, stickAt(5000, 9001), true).gas, 10000);
    EXPECT_EQ(stepByStick({}, {}, stickAt(5000, 9000), true).gas, 9000);
}

TEST(DriveStick, DoesNotDriveBeforeItHasTakenOver) {
    EXPECT_EQ(stepByStick({}, {}, stickAt(0, 0), false), DriveFields{});
}

TEST(DriveStick, HatAndButtonsMoveHeadAndMouthAtAnyTime) {
    JoystickState stick;
    stick.pov = 27000;
    stick.buttons[5] = true;
    DriveFields levels = stepByStick({}, {}, stick, false);
    EXPECT_EQ(levels.headLeftRight, 1900);
    EXPECT_EQ(levels.mouth, 3300);
    stick.pov = 0;
    EXPECT_EQ(stepByStick({}, {}, stick, false).headUpDown, 2100);
    stick.buttons[1] = true;
    stick.pov = kHatCentred;
    levels = stepByStick(levels, {}, stick, false);
    EXPECT_EQ(levels.headLeftRight, 2000);
}

TEST(DriveStick, TheAvoidanceFlipsAsItsButtonGoesDownAndNotWhileItIsHeld) {
    JoystickState down;
    down.buttons[2] = true;
    const DriveFields off = stepByStick({}, {}, down, false);
    EXPECT_EQ(off.avoidance, 0);
    EXPECT_EQ(stepByStick(off, down, down, false).avoidance, 0);
    EXPECT_EQ(stepByStick(off, {}, down, false).avoidance, 1);
}

TEST(DriveStick, TakesOverAndLetsGoByItsTwoPairs) {
    JoystickState stick;
    stick.buttons[6] = true;
    EXPECT_FALSE(stickTakesOver(stick));
    EXPECT_FALSE(stickLetsGo(stick));
    stick.buttons[0] = true;
    EXPECT_TRUE(stickTakesOver(stick));
    stick.buttons[0] = false;
    stick.buttons[1] = true;
    EXPECT_TRUE(stickLetsGo(stick));
}

}  // namespace
}  // namespace quorrin
