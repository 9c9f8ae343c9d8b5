// The operator's joystick: opened once when the main form loads, and from then on each change of its state
// becomes commanded levels, head and mouth commands.
//
// Not here: what the levels make of the wheels, and the mode (the control tick asks for it while
// joystickActive is set). Panel and remote client write the same values; the last writer wins.
//
// States: no device (nothing ever happens, and no later search), or one device, acquired. The buttons' rules
// are level-triggered and run once for each event, whatever changed in it: there is no repeat timer. A step
// that fails is skipped silently and the next one runs; a device that is not acquired, or was lost, is
// acquired anew by the next event.
//
// Fields of the device are frmGUI's own (session/record/joystick_values.h). The ports and forms must outlive
// this.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "platform/joysticks.h"
#include "session/record/public_values.h"

namespace quorrin {

class Joystick {
  public:
    // `joysticks` may be null: then there is none.
    Joystick(Joysticks* joysticks, PublicValues& values, frmGUI& gui, frmControlPanel& panel);

    // Both, in this order, when the main form loads.
    void InitDirectInput();
    void acquireJoystick();

    // Closes the acquisition.
    void CLRLISTS();
    void SetPropRange();
    // Fills AxisPresent.
    void IdentifyAxes(JoystickDevice* device);
    // The change event. 0 takes the state that the device has when it is opened.
    void DirectXEvent8_DXCallback(std::int32_t eventid);

  private:
    Joysticks& input();
    JoystickDevice& device();
    bool readState();

    Joysticks* joysticks_;
    PublicValues& values_;
    frmGUI& gui_;
    frmControlPanel& panel_;
    std::vector<std::string> devices_;  // as last listed
};

}  // namespace quorrin
