// What the tick does when a link that was up has been silent too long: both gateways are closed and the
// multimedia gateway is started anew. Blocks four seconds in all, and runs pending events when it closes.
//
// Afterwards the tick rests until the eleventh PowerFrame presses cmdStart, which begins the session again.
#pragma once

#include "session/tick_parts.h"

namespace quorrin {

void recoverLinks(TickParts& parts);

}  // namespace quorrin
