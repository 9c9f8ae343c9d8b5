// The station's shared record: one flat set of plain variables, put together from its groups.
//
// One PublicValues per station, owned by the composition and handed to the rooms by reference. A routine that
// needs only some groups takes only those, so that its signature tells what it may touch. All readers and
// writers run on the one thread; no field has a lock. Values are not persisted.
#pragma once

#include "session/record/drive_values.h"
#include "session/record/joystick_values.h"
#include "session/record/landmark_values.h"
#include "session/record/level_values.h"
#include "session/record/link_values.h"
#include "session/record/map_values.h"
#include "session/record/mode_values.h"
#include "session/record/path_values.h"
#include "session/record/pose_values.h"
#include "session/record/power_values.h"
#include "session/record/remote_values.h"
#include "session/record/sensor_values.h"
#include "session/record/servo_values.h"

namespace quorrin {

struct PublicValues : ModeValues,
                      LinkValues,
                      PowerValues,
                      ServoValues,
                      LevelValues,
                      SensorValues,
                      PoseValues,
                      LandmarkValues,
                      MapValues,
                      DriveValues,
                      PathValues,
                      RemoteValues,
                      CameraValues,
                      VoiceValues,
                      JoystickValues {};

}  // namespace quorrin
