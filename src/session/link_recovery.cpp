#include "session/link_recovery.h"

#include "session/power_bits.h"
#include "session/record/general_constants.h"

namespace quorrin {

void recoverLinks(TickParts& parts) {
    PublicValues& values = parts.values;
    frmGUI& gui = parts.gui;

    values.motSilentTicks = 0;
    values.tiSilentTicks = 0;
    gui.resetMOTTI = true;
    // A sequence that was under way does not go on when the session restarts.
    values.startStep = 0;

    clearPowerBits(values, kPowerSubsystemsAndMotion);
    values.motLinkUp = false;
    values.motWarmupCount = 0;
    values.tiLinkUp = false;
    values.tiWarmupCount = 0;
    parts.robotTI.WritePowerByte(values.powerByte.value());

    gui.resetCnt = 0;
    parts.clock.block(1000);
    parts.EndTask(GeneralConstants::kMotionGatewayTitle);
    parts.EndTask(GeneralConstants::kMultimediaGatewayTitle);

    suspendDriver(gui);
    values.antiStuckEnabled = false;
    values.autoStartPending = true;
    values.tickEnabled = false;
    gui.txtRobotStatus.setText("comm wrong");

    parts.clock.block(2000);
    parts.programs.start(values.gatewayTiExePath);
    parts.clock.block(1000);
}

}  // namespace quorrin
