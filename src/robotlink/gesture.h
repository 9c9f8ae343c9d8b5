// The fixed gesture that the control panel offers: six head positions one after the other, ending at neutral.
// Blocks for 7 seconds.
#pragma once

#include "platform/clock.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/servo_values.h"

namespace quorrin {

void fixedGesture(const NeutralServoValues& neutral, QuorrinSDK& myRobot, Clock& clock);

}  // namespace quorrin
