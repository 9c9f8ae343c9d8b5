// What the station does with the frames of the motion link: raw readings become metres, amperes and flags of
// the record, and the drives are guarded against overload.
//
// Nothing here commands the robot, except that an overloaded drive stops both. Ranges are metres from the
// robot's centre. An IR range is stored only above 0.23 m; otherwise the old one stays, however old it is.
// Only SensorFrame keeps the motion link alive for the tick's watchdog.
#pragma once

#include "robotlink/quorrin_sdk.h"
#include "session/record/lamp_controls.h"
#include "session/record/link_values.h"
#include "session/record/motion_controls.h"
#include "session/record/sensor_values.h"

namespace quorrin {

void onSensorFrame(const LinkProperties& frame, LinkValues& link, SensorValues& sensors,
                   MotionControls& controls);
void onIrFrame(const LinkProperties& frame, SensorValues& sensors);
void onMotorFrame(const LinkProperties& frame, SensorValues& sensors, LampControls& lamps,
                  QuorrinSDK& myRobot);

}  // namespace quorrin
