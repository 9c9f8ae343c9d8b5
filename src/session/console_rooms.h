// The console's rooms of one station put together: what the operator's forms do besides the session's own
// keys.
//
// Owns the logic objects; the forms, the record and the ports are the station's and must outlive it.
#pragma once

#include "console/about.h"
#include "console/control_panel.h"
#include "console/frm_about.h"
#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "console/frm_zoom_camera.h"
#include "console/joystick.h"
#include "console/window_drag.h"
#include "console/zoom_camera.h"
#include "session/record/public_values.h"
#include "session/session_seams.h"
#include "session/station_ports.h"

namespace quorrin {

struct ConsoleForms {
    PublicValues& values;
    frmGUI& gui;
    frmControlPanel& panel;
    frmZoomCamera& zoomCamera;
    frmAbout& about;
};

class ConsoleRooms {
  public:
    ConsoleRooms(const StationPorts& ports, const ConsoleForms& forms, SessionSeams& seams);

    ControlPanel& controlPanel() { return controlPanel_; }
    ZoomCamera& zoomCamera() { return zoomCamera_; }

  private:
    DragState drag_;
    ControlPanel controlPanel_;
    ZoomCamera zoomCamera_;
    About about_;
    Joystick joystick_;
};

}  // namespace quorrin
