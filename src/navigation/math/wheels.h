// The two drive wheels: between body speeds, wheel rates, encoder counts and metres.
//
// Forward speeds are m/s, turn rates rad/s counter-clockwise, wheel rates rad/s of wheel turn, encoder
// samples counts that wrap at 32767. Signs here are those of a forward roll; the left drive is mounted
// mirrored, and the mirror is applied by whoever commands or reads the left wheel. No state.
//
// Errors: ProgramError for a count that does not fit its type.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

// Wheel rate in rad/s to encoder counts per second.
Integer radPerSecToCounts(double rate);

// Wheel rates of a body that moves at forwardSpeed and turns at turnSpeed.
double leftWheelRate(double forwardSpeed, double turnSpeed);
double rightWheelRate(double forwardSpeed, double turnSpeed);

// Position target of either wheel for a spin in place by headingChange: both wheels get the same increment,
// which turns the robot because the left drive is mirrored.
Long spinTarget(Integer encoder, double headingChange);

// Counts from sample `previous` to sample `now`, a change of more than 600 being read as a wrap.
double encoderChange(double now, double previous);

// Metres that a wheel rolls in `counts`.
double countsToMetres(double counts);

}  // namespace quorrin
