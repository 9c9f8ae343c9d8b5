// What the dashboard tells at a glance, one Glance for each thing that an operator watches. Made from the
// record and the forms' values alone: it reads, writes nothing, and knows no time.
//
// Battery voltages in volts, currents in amperes, silence in seconds (ticks of 100 ms). A thing that
// was never measured says so.
#pragma once

#include "base/glance.h"
#include "console/frm_gui.h"
#include "session/record/public_values.h"

namespace quorrin {

struct DashboardGlances {
    Glance mode;
    Glance holder;  // who drives the robot now
    Glance motionLink;
    Glance multimediaLink;
    Glance battery1;
    Glance battery2;
    Glance dcIn;
    Glance charge;
    Glance temperature;
    Glance leftDrive;
    Glance rightDrive;
    Glance remote;
    Glance stuck;
};

// `panel` is the control panel's form: whether it shows tells who holds the robot.
DashboardGlances glances(const PublicValues& values, const frmGUI& gui, const Form& panel);

}  // namespace quorrin
