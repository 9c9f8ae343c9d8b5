// Who holds the robot: while joystick, panel or a remote driver does, "JOY" is asked for; afterwards the mode
// that the last transition left.
#pragma once

#include "session/record/mode_values.h"

namespace quorrin {

// One tick's arbitration. Changes requests and joyOverride only, never the mode.
void arbitrateOverride(ModeValues& mode);

}  // namespace quorrin
