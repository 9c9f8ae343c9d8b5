#include "console/control_panel_switch.h"

#include "navigation/teleoperation.h"

namespace quorrin {

namespace {

constexpr int kNoGas = 10000;
constexpr int kReleased = 10000;
constexpr int kStraight = 5000;

void openPanel(PublicValues& values, frmGUI& gui, frmControlPanel& panel) {
    gui.cmdShowControlPanel.setCaption("Hide Control");
    values.manualPanelActive = true;
    panel.show();
    values.gasLevel = kNoGas;
    values.brakeLevel = kReleased;
    values.steeringLevel = kStraight;
    panel.slbGasLevel.setCaption(std::to_string(kNoGas));
    values.joystickDriveLatch = false;
}

void hidePanel(PublicValues& values, frmGUI& gui, frmControlPanel& panel) {
    gui.cmdShowControlPanel.setCaption("Show Control");
    values.manualPanelActive = false;
    panel.hide();
    values.joystickDriveLatch = true;
}

}  // namespace

void bindControlPanelSwitch(PublicValues& values, frmGUI& gui, frmControlPanel& panel) {
    gui.cmdShowControlPanel.onClick = [&values, &gui, &panel] {
        if (gui.cmdShowControlPanel.caption() == "Show Control") {
            openPanel(values, gui, panel);
        } else {
            hidePanel(values, gui, panel);
        }
    };
    panel.cmdClose.onClick = [&values, &gui, &panel] {
        values.manualPanelActive = false;
        gui.cmdShowControlPanel.setCaption("Show Control");
        if (gui.teleoperationtask) gui.teleoperationtask->suspend();
        panel.close();
    };
    // Any other way of closing leaves the caption as it is.
    panel.onClose = [&values, &panel] {
        values.manualPanelActive = false;
        panel.hide();
    };
}

}  // namespace quorrin
