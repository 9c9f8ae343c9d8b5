// Power and charging: voltages in volts, temperatures as raw readings (800 and above: cool).
//
// measurePower is the measuring half of PowerFrame: it fills the power group, writes labels and lamps, and
// decides by itself about charging. Bits 6 and 7 of powerByte charge; the tick sends the byte. On a powered
// dock every frame holds the driver, and with cool batteries asks for IDLE; away from a dock the charge bits
// stay as they are. A reference reading below 1 makes all voltages 0. A threshold box without a number
// counts as 0.
#pragma once

#include <functional>

#include "robotlink/quorrin_sdk.h"
#include "session/record/lamp_controls.h"
#include "session/record/mode_values.h"
#include "session/record/power_controls.h"
#include "session/record/power_values.h"

namespace quorrin {

struct PowerHooks {
    std::function<void()> pressStart;            // click cmdStart by program
    std::function<void()> suspendTeleoperation;  // teleoperationtask.suspend
    bool formRunning = false;                    // the main form has loaded and not begun to unload
};

void measurePower(const LinkProperties& frame, ModeValues& mode, PowerValues& power, PowerControls& controls,
                  LampControls& lamps, const PowerHooks& hooks);

// tmrFlashRed: each lamp whose flag is set goes from light green to red, and from any other colour to light
// green; a lamp whose flag is clear is left alone.
void flashRed(const PowerValues& power, LampControls& lamps);

// cmdStopChg: no charging from now on; goes to the robot at once. The next frame on a dock with cool
// batteries charges again.
void stopCharge(PowerValues& power, QuorrinSDK& robotTI);

}  // namespace quorrin
