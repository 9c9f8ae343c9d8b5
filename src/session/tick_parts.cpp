#include "session/tick_parts.h"

#include "navigation/teleoperation.h"

namespace quorrin {

void continueDriver(const frmGUI& gui) {
    if (gui.teleoperationtask) gui.teleoperationtask->continue_();
}

void suspendDriver(const frmGUI& gui) {
    if (gui.teleoperationtask) gui.teleoperationtask->suspend();
}

}  // namespace quorrin
