// The operator's commanded levels; panel, joystick and remote client write them alike, the last writer wins.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct LevelValues {
    Integer steeringLevel;        // 0 to 10000, 5000 straight
    Integer gasLevel;             // 0 full to 10000 none
    Integer brakeLevel;           // above 9000 is released
    Integer joystickY;            // 6001 and above: tail first
    bool useWanderInput = false;  // the driver ignores the levels
    bool caEnabled = false;       // the operator's avoidance switch
};

}  // namespace quorrin
