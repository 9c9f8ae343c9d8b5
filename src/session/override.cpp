#include "session/override.h"

namespace quorrin {

void arbitrateOverride(ModeValues& mode) {
    const bool manual = mode.joystickActive || mode.manualPanelActive;
    if (manual && !mode.joyOverride) {
        mode.requestJoy = true;
        mode.requestWander = false;
        mode.requestIdle = false;
        mode.joyOverride = true;
    } else if (!manual && mode.joyOverride) {
        if (mode.previousMode == kModeWondering || mode.previousMode == kModeIdle) {
            mode.requestWander = mode.previousMode == kModeWondering;
            mode.requestIdle = mode.previousMode == kModeIdle;
            mode.requestJoy = false;
        }
        mode.joyOverride = false;
    }
}

}  // namespace quorrin
