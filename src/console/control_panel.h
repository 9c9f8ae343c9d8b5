// What the control panel does: its life as a form, its scroll bars, buttons and keys.
//
// It has no logic beyond clamped steps: everything goes through the scroll bars, and each of these writes one
// of the shared levels, which the joystick and a remote client write as well; the last writer wins. While the
// panel shows, manualPanelActive tells the control tick that the operator holds the robot; the tick changes
// the mode.
//
// The form is loaded when it is first shown and again after it was unloaded, with its controls as designed;
// a panel that was only hidden comes back as it was, but for what each activation sets: no gas, no brake,
// straight ahead.
#pragma once

#include <string>

#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "console/window_drag.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/public_values.h"

namespace quorrin {

class ControlPanel {
  public:
    // All must outlive it.
    ControlPanel(Clock& clock, PublicValues& values, frmGUI& gui, frmControlPanel& panel, DragState& drag,
                 QuorrinSDK& myRobot);
    ControlPanel(const ControlPanel&) = delete;
    ControlPanel& operator=(const ControlPanel&) = delete;

    // The panel's body, by which it is dragged.
    WindowDrag& drag() { return drag_; }
    // The pending action of the keyboard, "" before the first key.
    const std::string& selectedAction() const { return selectedAction_; }

    // The fixed gesture of the head; holds the station for 7 seconds. It is there for whoever asks for it: no
    // key and no button of the panel does.
    void gesture();

  private:
    // control_panel.cpp: the form's life
    void bindLife();
    void cmdShowControlPanel_Click();
    void cmdClose_Click();
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
    void resetControls();
    void place();
    // control_panel_bars.cpp: scroll bars and buttons
    void bindBars();
    void bindButtons();
    void cmdGasUp_Click();
    void cmdGasDown_Click();
    void cmdBrake_Click();
    // control_panel_keys.cpp
    void bindKeys();
    void Picture1_KeyDown(int key);
    void Picture1_KeyUp(int key);
    void tmrButton_Timer();
    void carryOut(const std::string& action);

    Clock& clock_;
    PublicValues& values_;
    frmGUI& gui_;
    frmControlPanel& panel_;
    WindowDrag drag_;
    QuorrinSDK& myRobot_;
    std::string selectedAction_;
    bool loaded_ = false;
    bool resetting_ = false;  // the controls get their design values, which changes no level
    int keyDepth_ = 0;        // keys that came up while another one let pending events run
};

}  // namespace quorrin
