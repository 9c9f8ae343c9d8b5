// What the dashboard tells at a glance: each thing that an operator watches as a short word, a line of
// detail, a tone, and a progress where something is being waited for. Made from the record and the forms'
// values alone: it reads, writes nothing, and knows no time.
//
// Battery voltages in volts, currents in amperes, silence in seconds (ticks of 100 ms). A thing that
// was never measured says so.
#pragma once

#include <string>

#include "console/frm_gui.h"
#include "session/record/public_values.h"

namespace quorrin {

// How a word is meant; never told by colour alone.
enum class Tone { off, good, busy, warning, bad };

struct Glance {
    std::string word;
    std::string detail;
    Tone tone = Tone::off;
    double progress = -1;  // 0 to 1; below 0: nothing is waited for
};

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
