// What the steps of the control tick work on. References only; the session owns it all.
#pragma once

#include <functional>

#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "platform/clock.h"
#include "platform/programs.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/public_values.h"

namespace quorrin {

struct TickParts {
    PublicValues& values;
    frmGUI& gui;
    frmControlPanel& panel;
    Clock& clock;
    Programs& programs;
    QuorrinSDK& myRobot;
    QuorrinSDK& robotTI;
    // Closes a gateway by window title; runs pending events.
    std::function<void(const char* title)> EndTask;
};

// teleoperationtask.continue and .suspend. The form's reference is gone while the program closes; then there
// is nothing left to hold.
void continueDriver(const frmGUI& gui);
void suspendDriver(const frmGUI& gui);

}  // namespace quorrin
