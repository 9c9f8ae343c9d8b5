// Who holds the robot, whether a remote client is there, and whether the stuck detector has the wheels, at a
// glance.
//
// The levels have many writers and the last one wins. A hold outlives the one who took it: a client that
// falls silent, or is gone, keeps the robot held until something lets go.
#pragma once

#include "console/glance.h"

namespace quorrin {

Glance holderGlance(const PublicValues& values, const frmGUI& gui, const Form& panel);
Glance remoteGlance(const PublicValues& values, const frmGUI& gui);
Glance stuckGlance(const PublicValues& values);

}  // namespace quorrin
