// Which mode the robot is in, which is asked for, and who holds the robot.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

// Values of robotMode.
constexpr int kModeIdle = 9;
constexpr int kModeWondering = 10;
constexpr int kModeJoy = 7;
constexpr int kModeStarting = 1;  // transient, between cmdStart and the end of runRobot or suspendRobot

struct ModeValues {
    Integer robotMode;     // written by the tick, cmdStart and runRobot
    Integer previousMode;  // mode left by the last transition
    bool requestIdle = false;
    bool requestWander = false;
    bool requestJoy = false;
    Integer startStep;         // ticks of the motion bring-up sequence, 0 when none runs
    bool joyOverride = false;  // the override that forced requestJoy is in force
    bool tickEnabled = false;
    bool displayEnabled = false;
    bool pingEnabled = false;        // written with the other two, no effect
    bool autoStartPending = false;   // press cmdStart when multimedia frames flow
    bool manualPanelActive = false;  // the panel shows, or remote commands hold the robot
    bool joystickActive = false;     // the joystick owns the commanded levels
    bool aboutOpen = false;
    bool zoomCameraOpen = false;
};

}  // namespace quorrin
