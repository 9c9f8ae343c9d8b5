// Supervision of the two links: counted frames and silent ticks.
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct LinkValues {
    bool motLinkUp = false;  // more than 10 SensorFrames since the motion gateway was started
    bool tiLinkUp = false;   // more than 10 PowerFrames
    Integer motWarmupCount;  // frames counted towards motLinkUp
    Integer tiWarmupCount;
    Integer motSilentTicks;  // ticks since the last motion frame, counted while motLinkUp
    Integer tiSilentTicks;
};

}  // namespace quorrin
