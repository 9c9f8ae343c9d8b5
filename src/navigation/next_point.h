// From a steering command to a target ahead of the robot.
//
// Levels are 0 to 10000: x 5000 is straight ahead (0 is 30 degrees to the left), y 10000 is standstill and
// lower is faster, z must exceed 9000 for any motion. The arithmetic is in doubles, so no level that a client
// can send is an error. A y above 9000 moves slowly and without the heading search. Metres and radians, world
// frame.
//
// Errors: ProgramError for a wander speed that is no whole number or does not fit.
#pragma once

#include "base/checked_int.h"
#include "session/record/drive_values.h"
#include "session/record/level_values.h"
#include "session/record/navigation_controls.h"
#include "session/record/pose_values.h"

namespace quorrin {

// The three working copies of one step.
struct SteeringCommand {
    Integer x;
    Integer y;
    Integer z;
};

struct SteeringTarget {
    double offset = 0;         // radians off the nose; beyond a quarter turn when driving tail first
    double speedFraction = 0;  // of the full scale
    double steerFraction = 0;  // of full steering, left positive
};

// The operator's levels, or the wander: straight ahead at the speed of its box.
SteeringCommand readCommand(const LevelValues& levels, const NavigationControls& controls);

// Writes vfhActive, reverseDrive and the dashboard's copy of the gas level.
SteeringTarget steer(const SteeringCommand& command, Integer joystickY, DriveValues& drive);

}  // namespace quorrin
