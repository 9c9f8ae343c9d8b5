// The groups of the settings panel, each made with its controls and title.
#pragma once

#include "desktop/forms/lamp_rows.h"
#include "desktop/forms/placing.h"

namespace quorrin {

Group* batteryGroup(Placing& place, LampRows& lamps);  // fraBat
Group* reviewGroup(Placing& place);                    // fra(12)
Group* captureGroup(Placing& place);                   // fra(11)
Group* soundGroup(Placing& place);                     // fra(7)
Group* sendingGroup(Placing& place);                   // fra(3) with fra(8) and fra(5)
Group* receivedGroup(Placing& place);                  // fra(0)
Group* imageQualityGroup(Placing& place);              // fra(4)

}  // namespace quorrin
