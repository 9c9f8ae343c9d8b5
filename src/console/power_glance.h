// The seven lamps at a glance: the lamp's word with the measurement behind it.
#pragma once

#include "console/glance.h"

namespace quorrin {

// `element` of shpBatteryStatus. A drive's load is its progress while it is warm.
Glance lampGlance(const PublicValues& values, const frmGUI& gui, int element);

}  // namespace quorrin
