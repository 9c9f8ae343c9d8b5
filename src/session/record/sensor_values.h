// What the motion frames said, in metres, amperes and flags, and where the sensors sit.
//
// Ranges are measured from the robot's centre; bearings are radians from the robot's front, left positive.
#pragma once

#include <array>

#include "base/checked_int.h"

namespace quorrin {

struct SensorValues {
    std::array<double, 10> irRange{};
    std::array<double, 10> irRadius{};
    std::array<double, 10> irAngle{};
    std::array<double, 6> sonarRange{};  // 0 to 3 are used
    std::array<double, 6> sonarRadius{};
    std::array<double, 6> sonarAngle{};
    std::array<Integer, 3> humanRaw{};  // 1 and 2 are used
    std::array<bool, 3> humanFlags{};   // 1 and 2 are used
    Integer humanLocation;              // 1 to 4
    Integer encoderLeft;                // counts, wrapping at 32767
    Integer encoderRight;
    double wheelSpeedLeft = 0;  // encoder units per second
    double wheelSpeedRight = 0;
    double motorCurrentLeft = 0;  // amperes
    double motorCurrentRight = 0;
    bool encoderDataValid = false;  // the first motion frame has arrived
    double motorHeatLeft = 0;       // running load estimates
    double motorHeatRight = 0;
    bool motionInhibit = false;  // a drive is overloaded; no velocity commands are sent
};

}  // namespace quorrin
