// What navigation commands and which of its parts hold the wheels.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct DriveValues {
    double wheelCmdLeft = 0;  // last commanded wheel velocities, counts per second, mirrored sign in place
    double wheelCmdRight = 0;
    bool vfhActive = false;     // the heading search runs
    bool reverseDrive = false;  // tail first
    bool inStuck = false;       // the stuck detector has taken the wheels
    bool stuckLeft = false;
    bool stuckRight = false;
    bool antiStuckEnabled = false;
    double stuckRatioLimit = 0;
    Integer finishCount;
    double displayHeadingDeg = 0;  // diagnostic of the heading search
    Integer workingGas;            // the driver's working copy of the gas level, for the dashboard
};

}  // namespace quorrin
