// One line that tells how a station stands: what a session without a screen shows.
//
//   t= mode= mot= ti= x= y= theta= front= left= right= cmdL= cmdR= bat1= bat2= dc= remote=
//
// t in seconds since the station's start; mode is the status text as it stands, which may be empty or hold a
// blank ("comm wrong"); mot, ti and remote are 0 or 1; x, y in metres and theta in radians in the station's
// own frame; front, left and right the nearest range there in metres from the robot's centre ("-" before the
// first); cmdL and cmdR the last wheel command in counts per second; batteries and DC input in volts. Behind
// it, in brackets, why remote clients cannot call ("port 7060 is in use"), where they cannot.
#pragma once

#include <string>

#include "session/record/public_values.h"

namespace quorrin {

std::string statusLine(const PublicValues& values, const std::string& mode, bool remoteConnected,
                       double seconds);

}  // namespace quorrin
