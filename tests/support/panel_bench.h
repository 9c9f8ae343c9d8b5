// The control panel with its logic on virtual time, without the rest of a station.
#pragma once

#include "console/control_panel.h"
#include "platform/virtual/virtual_clock.h"
#include "support/fake_link.h"

namespace quorrin {

struct PanelBench {
    PanelBench() { gui.show(); }

    void open() { gui.cmdShowControlPanel.operatorClick(); }
    void key(int code) { panel.Picture1.operatorKeyDown(code); }
    void keyUp(int code) { panel.Picture1.operatorKeyUp(code); }
    void click(CommandButton& button, int times = 1) {
        for (int i = 0; i < times; ++i) button.operatorClick();
    }

    VirtualClock clock;
    PublicValues values;
    frmGUI gui{clock};
    frmControlPanel panel{clock};
    DragState dragState;
    FakeLink myRobot;
    ControlPanel logic{clock, values, gui, panel, dragState, myRobot};
};

}  // namespace quorrin
