// The seven status lamps: 0 battery 1, 1 battery 2, 2 DC input, 3 charging, 4 temperature, 5 left drive,
// 6 right drive.
#pragma once

#include "base/controls.h"
#include "session/record/general_constants.h"

namespace quorrin {

struct LampControls {
    explicit LampControls(Form& form)
        : shpBatteryStatus(form, "shpBatteryStatus", 0, GeneralConstants::kGreen) {}

    ControlArray<Shape, 7> shpBatteryStatus;
};

}  // namespace quorrin
