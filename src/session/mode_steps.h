// The mode machine's step of one tick: transitions between "wondering", "JOY" and "IDLE".
//
// Requests are set by anybody; only these steps change robotMode. Leaving for IDLE closes the motion gateway
// and runs pending events while it does. A request for the current mode stays set until a transition reads
// it.
#pragma once

#include "session/tick_parts.h"

namespace quorrin {

// Pictures of cmdChEn.
constexpr int kPictureWondering = 1;
constexpr int kPictureIdle = 2;
constexpr int kPictureJoy = 3;

// Does nothing for a mode that is none of the three.
void stepMode(TickParts& parts);

// The motion bring-up sequence, one tick; part of the step of "IDLE".
void stepIdle(TickParts& parts);

// Entry values of the two driving modes' thresholds.
void setWanderThresholds(NavigationControls& controls);
void setJoyThresholds(NavigationControls& controls);
void clearRequests(ModeValues& mode);

}  // namespace quorrin
