// tmrHuman, a timer of the main form that is left over: nothing starts it. Its handler counts to three and
// switches the timer off.
#pragma once

#include "base/controls.h"

namespace quorrin {

void bindHumanTimer(Timer& tmrHuman);

}  // namespace quorrin
