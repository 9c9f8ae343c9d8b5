// The truth about a simulated robot as one line of JSON: where it really is and what it was told.
//
// Keys: t (s since the robot's start), x, y (m, the site's frame), theta (rad, within pi), v, w (m/s, rad/s),
// contacts (collisions since the start), distance (m since the start), servos (six), powerByte, lcd (SHA-256
// of the shown file or ""), modeLeft, modeRight ("velocity", "position", "suspended"), sounds (played since
// the last line: name, bytes, sha256). The line has no line feed.
#pragma once

#include <string>

#include "robot/simulated_robot.h"

namespace quorrin {

// Takes the robot's list of sounds along.
std::string truthLine(SimulatedRobot& robot);

}  // namespace quorrin
