// How fast to go and to turn, from the heading error, the distance to the target and the density ahead.
//
// Metres, radians, seconds. The robot slows beyond 0.25 rad of error and, unless it runs nonstop, inside 0.2
// m of the target. No minimum speed, no state.
//
// Errors: ProgramError for a speedSaturation of 0.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct SpeedInput {
    double headingError;    // rad, wrapped
    double targetDistance;  // m
    double travelSpeed;     // m/s, TargetForwardspeed
    double turnLimit;       // rad/s
    bool nonstop;
};

struct BodySpeed {
    double factor;   // 0 to 1, what slows the travel speed
    double forward;  // m/s
    double turn;     // rad/s
};

BodySpeed speedLaws(const SpeedInput& input);

// The forward speed with the density of the chosen sector taken off.
double slowedByDensity(const BodySpeed& speed, double travelSpeed, Integer density, Integer speedSaturation);

}  // namespace quorrin
