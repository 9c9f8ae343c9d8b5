// Angle helpers of navigation. Radians throughout, counter-clockwise, except where a name says degrees.
//
// Pi is the literal 3.1415926 and its multiples, never a library value: sector boundaries depend on these
// digits. A wrapped angle can therefore sit a hair outside the true range, which is accepted. No state.
//
// Errors: ProgramError where a quotient overflows or a count of turns does not fit an Integer.
#pragma once

namespace quorrin {

double degToRad(const double& degrees);

// Direction from (x0, y0) to (x1, y1). Two equal points give -1.5707963.
double bearingBetween(double x0, double y0, double x1, double y1);

// One correction by a whole turn, not a loop: an input beyond three pi stays out of range. Reduce such values
// with reduceTurns first.
void wrapPi(double& angle);

// The angle without its whole turns, sign kept.
double reduceTurns(double angle);

}  // namespace quorrin
