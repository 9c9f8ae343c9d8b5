// Beginning and suspending a motion session.
//
// runRobot resets exactly what it names: grid, ranges, tasks and the motion gateway go on as they are. It
// ends with the tick on, in IDLE, with a request for wandering that the next tick serves.
#pragma once

#include "console/frm_gui.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/public_values.h"

namespace quorrin {

void runRobot(PublicValues& values, frmGUI& gui);
void suspendRobot(PublicValues& values, frmGUI& gui, QuorrinSDK& myRobot);

}  // namespace quorrin
