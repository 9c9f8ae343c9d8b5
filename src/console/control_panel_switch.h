// Showing and closing the control panel. While it shows, manualPanelActive tells the tick that the operator
// holds the robot; the tick changes the mode.
//
// Not here: what the panel's own scroll bars and keys do.
#pragma once

#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "session/record/public_values.h"

namespace quorrin {

void bindControlPanelSwitch(PublicValues& values, frmGUI& gui, frmControlPanel& panel);

}  // namespace quorrin
