// Is there a person near the robot, and on which side?
//
// Both flags are decided on the first sensor's sample: the second sensor is stored and never asked, so left
// and right always agree and only locations 3 (both) and 4 (nobody) come out. Operators rely on what they
// have; do not mend it.
#pragma once

#include "session/record/motion_controls.h"
#include "session/record/sensor_values.h"

namespace quorrin {

// 1 right only, 2 left only, 3 both, 4 nobody.
int humanLocationFrom(bool leftShown, bool rightShown);

// Flags, pictures, location and its text box, from humanRaw.
void decidePresence(SensorValues& sensors, MotionControls& controls);

}  // namespace quorrin
