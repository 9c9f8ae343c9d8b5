// What buttons, hat and axes of a joystick mean. Pure functions from one state to the groups of the record,
// one for each rule; the order in which they apply is console/joystick.h's.
//
// All are level-triggered: a key that is held acts again with each state that is passed in. Steps are 100
// servo units, and a limit is looked at before the step, so that a value off the grid of hundreds may end up
// to 99 beyond it.
#pragma once

#include "platform/joysticks.h"
#include "session/record/joystick_values.h"
#include "session/record/level_values.h"
#include "session/record/servo_values.h"

namespace quorrin {

// Trigger (0) and button 6: the stick wants to drive.
bool takesOver(const JoystickState& stick);
// Buttons 1 and 6: it lets go.
bool givesBack(const JoystickState& stick);

// Steering, gas and the tail-first axis as they stand; the trigger is the brake, full or released.
void commandLevels(const JoystickState& stick, LevelValues& levels);

// Button 1: the head looks straight ahead.
void centreHead(const JoystickState& stick, ServoValues& servos);
// Button 2.
void flipAvoidance(const JoystickState& stick, LevelValues& levels);
// Buttons 3, up, and 5, down.
void moveMouth(const JoystickState& stick, ServoValues& servos);
// The hat, in its four straight directions.
void moveHead(const JoystickState& stick, ServoValues& servos);
// Buttons 6 to 9, as far as the device has them; of several the last one counts.
void chooseGear(const JoystickState& stick, int buttonCount, JoystickValues& values);

}  // namespace quorrin
