// The two links and the mode at a glance: the warm-up frames, the start sequence's ticks, a link growing
// silent.
#pragma once

#include "console/glance.h"

namespace quorrin {

Glance modeGlance(const PublicValues& values, const frmGUI& gui);
Glance motionLinkGlance(const PublicValues& values, const frmGUI& gui);
Glance multimediaLinkGlance(const PublicValues& values, const frmGUI& gui);

// The links were found silent and the gateways are being started again.
bool recovering(const ModeValues& mode, const MainFormValues& form);

}  // namespace quorrin
