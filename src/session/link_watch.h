// The link watchdogs: ticks of silence, counted only on a link that was up.
#pragma once

#include "base/controls.h"
#include "session/record/link_values.h"

namespace quorrin {

// 20 seconds at the tick's 100 ms.
constexpr int kSilentTicksAllowed = 200;

// Counts one tick, shows the multimedia link's count, and tells whether a link has been silent too long.
bool countSilence(LinkValues& link, Label& lblCom);

}  // namespace quorrin
