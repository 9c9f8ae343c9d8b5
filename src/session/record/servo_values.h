// Look and mouth commands, and the six servo outputs last sent. Servo units, about 0 to 4900.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct ServoValues {
    Integer headCmdUpDown;     // 2000 is straight ahead
    Integer headCmdLeftRight;  // 2000 is straight ahead
    Integer mouthCmd;
    Integer eyeUpDownInit;
    Integer eyeLeftRightInit;
    Integer servoOut1;   // head up/down
    Integer servoOut2;   // head left/right
    Integer servoOut3;   // mouth
    Integer servoOut4;   // spare
    Integer servoOut5;   // eyes up/down
    Integer servoOut6;   // eyes left/right
    Integer mouthSteps;  // remaining mouth flaps
};

// Neutral positions from the installation's servo file; public fields of frmGUI.
struct NeutralServoValues {
    Integer cHeadUpDown;
    Integer cHeadLeftRight;
    Integer cMouthUpDown;
    Integer cEyeUpDown;
    Integer cEyeLeftRight;
};

}  // namespace quorrin
