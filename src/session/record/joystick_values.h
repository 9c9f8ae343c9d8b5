// What the operator's joystick leaves in the record. The levels that it commands are in level_values.h and
// servo_values.h, where panel and remote client write them too.
#pragma once

#include <array>
#include <memory>

#include "base/checked_int.h"
#include "platform/joysticks.h"

namespace quorrin {

struct JoystickValues {
    Integer joystickGear;             // the last gear button: 1, 2, 3 or 10; read by nobody
    bool joystickDriveLatch = false;  // the control panel was hidden since it was last opened
};

// Public fields of frmGUI.
struct JoystickFormValues {
    std::unique_ptr<JoystickDevice> diDev;  // the open joystick; empty where there is none
    bool joystickRunning = false;           // read by nothing
    Long joystickEventHandle;               // 0: no device was found
    Long lButtons;                          // how many buttons the device has
    JoystickState joystickState;            // as last read
    // From 1: X, Y, Z, Rx, Ry, Rz, and 7 and 8 for a slider; filled and never read. [0] is unused.
    std::array<bool, 9> AxisPresent{};
};

}  // namespace quorrin
