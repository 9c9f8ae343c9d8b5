// Wheel odometry: one step of the pose from two encoder samples.
//
// The pose integrates along the new heading, in metres and radians of the world frame. A pose that leaves
// +-7.9 m is taken to be at the origin, facing along x, so that it stays on the grid of the sensor map.
// A jump of more than 600 counts always reads as a wrap of the encoder. No clock, no filter.
#pragma once

#include "session/record/pose_values.h"
#include "session/record/sensor_values.h"

namespace quorrin {

struct OdometryState {
    double previousEncoderLeft = 0;
    double previousEncoderRight = 0;
    bool firstSample = false;  // the next sample only records the encoders
    double stepLeft = 0;       // metres of the last step, forward positive
    double stepRight = 0;
};

// Does nothing until the encoders are valid.
void integrateOdometry(PoseValues& pose, const SensorValues& sensors, OdometryState& state);

}  // namespace quorrin
