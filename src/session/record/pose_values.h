// Where the robot is: metres and radians in the world frame, x ahead of the start pose, y to its left,
// heading counter-clockwise.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct PoseValues {
    double robotX = 0;
    double robotY = 0;
    double robotTheta = 0;  // kept in the wrapped range
    double thetaStep = 0;   // last heading increment from odometry
    Integer lostFixCount;   // ticks without a landmark fix; 50 marks a range reset, 60 is saturated
    // Copies of the last landmark fix, for the display.
    double fixX = 0;
    double fixY = 0;
    double fixTheta = 0;
    double fixX2 = 0;
    double fixY2 = 0;
    double fixTheta2 = 0;
};

}  // namespace quorrin
