// Fields of the main form that are no controls. They are reachable because a station has one main form.
#pragma once

#include <string>

#include "base/checked_int.h"
#include "session/record/joystick_values.h"
#include "session/record/servo_values.h"

namespace quorrin {

struct MainFormValues : NeutralServoValues, JoystickFormValues {
    // Remains of an unfinished patrol: written by runRobot and by the link recovery, read by nothing.
    Integer alarmCnt;
    Integer alarmEnd;
    bool iniPar = false;
    Integer resetCnt;
    bool resetMOTTI = false;  // the gateways were recycled

    Integer Record_Flag;  // the talk gate, 0 or -1
    double fileTolNum = 0;
    std::string CurrRuningFolderName;
    double playingNumber = 0;
    std::string VideoPlayMode;

    bool sensorClientConnected = false;
    Integer statusRecordTail;      // last field of the status record, always 0
    Integer statusBroadcastTicks;  // ticks since the last periodic status broadcast
    bool formRunning = false;      // has finished loading and not begun to unload
    Integer connCheckTicks;
};

}  // namespace quorrin
