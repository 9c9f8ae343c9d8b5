// The main form's timers that move the head. tmrServoControl has no handler; it is only ever disabled.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct HeadControls {
    HeadControls(Form& form, Clock& clock)
        : tmrMouth(form, "tmrMouth", clock, 300), tmrServoControl(form, "tmrServoControl", clock, 0) {}

    Timer tmrMouth;  // one flap of the mouth each period, while the robot speaks
    Timer tmrServoControl;
};

}  // namespace quorrin
