// One whole station, composed: the shared record, the forms, and what binds them together.
//
// Everything that belongs to a station is owned here; there are no globals, and a process can hold many. What
// it asks of its host comes in through the ports, which must outlive it. Not here: windows, sockets, real
// time.
//
// endProgram is called when the program is to end, and should not return; if it does, ProgramEnd is thrown,
// so that nothing of the session runs on. A ProgramError that a handler lets out is for whoever delivers
// events.
#pragma once

#include <memory>
#include <vector>

#include "console/frm_about.h"
#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "console/frm_login.h"
#include "console/frm_zoom_camera.h"
#include "session/record/public_values.h"
#include "session/session_seams.h"
#include "session/station_ports.h"

namespace quorrin {

class AntiStuck;
class ConsoleRooms;
class GPS;
class SensorMapBuilder;
class speedP2PVFH;

class Station {
  public:
    explicit Station(const StationPorts& ports);
    ~Station();

    PublicValues values;
    frmLogin login;
    frmGUI gui;
    frmControlPanel controlPanel;
    frmZoomCamera zoomCamera;
    frmAbout about;
    // Places of the rooms above; to be set before the main form loads.
    SessionSeams seams;

    // Begins with the login form, or as if the login had just handed over with the stored (or default)
    // address. The main form's load blocks a second.
    void startAtLogin();
    void startAtMainForm();

    // All forms, the main form first.
    std::vector<Form*> forms();
    // The driver's navigator; null before the main form has loaded and after shutdown.
    const speedP2PVFH* navigator() const;
    // The tasks that the main form's load builds; null before it and after shutdown.
    const GPS* gps() const;
    const SensorMapBuilder* sensorMap() const;
    const AntiStuck* antiStuck() const;
    // What the console's forms do; lives as long as the station.
    ConsoleRooms& console();

  private:
    struct Parts;
    void showMainForm();

    StationPorts ports_;
    std::unique_ptr<Parts> parts_;
};

}  // namespace quorrin
