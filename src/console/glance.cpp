#include "console/glance.h"

#include "console/holder_glance.h"
#include "console/link_glance.h"
#include "console/power_glance.h"

namespace quorrin {

DashboardGlances glances(const PublicValues& values, const frmGUI& gui, const Form& panel) {
    return {modeGlance(values, gui),
            holderGlance(values, gui, panel),
            motionLinkGlance(values, gui),
            multimediaLinkGlance(values, gui),
            lampGlance(values, gui, 0),
            lampGlance(values, gui, 1),
            lampGlance(values, gui, 2),
            lampGlance(values, gui, 3),
            lampGlance(values, gui, 4),
            lampGlance(values, gui, 5),
            lampGlance(values, gui, 6),
            remoteGlance(values, gui),
            stuckGlance(values)};
}

}  // namespace quorrin
