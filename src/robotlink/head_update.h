// The look and mouth commands, turned into the six servo channels. Servo units, 0 to about 4900.
//
// A look command is 2000 at rest; it moves the eyes first and only then the head. The head moves against the
// command on the vertical axis and with it on the horizontal one. A command outside the tables (0, or above
// 3500 vertical and 4000 horizontal) leaves the last outputs in place.
#pragma once

#include "base/controls.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/servo_values.h"

namespace quorrin {

// Called once per tick while the motion link is up.
void updateHead(ServoValues& servo, const NeutralServoValues& neutral, QuorrinSDK& myRobot);

// tmrMouth: one flap, or the end of flapping. Stops the timer itself.
void flapMouth(ServoValues& servo, const NeutralServoValues& neutral, Timer& tmrMouth);

}  // namespace quorrin
