#include "session/control_tick.h"

#include <utility>

#include "base/number_text.h"
#include "base/resume_on_error.h"
#include "robotlink/head_update.h"
#include "session/link_recovery.h"
#include "session/link_watch.h"
#include "session/mode_steps.h"
#include "session/override.h"
#include "session/power_bits.h"
#include "session/status_record.h"

namespace quorrin {

ControlTick::ControlTick(TickParts parts, const std::function<void(int, const std::string&)>& sendStatus)
    : parts_(std::move(parts)), sendStatus_(sendStatus) {}

void ControlTick::tmrControl_Timer() {
    if (parts_.values.tickEnabled && !stepSession()) return;
    flushPowerByte(parts_.values, parts_.gui.lblTest, parts_.robotTI);
}

// False when the links were recovered: the tick is over then, the power byte has gone out on its own.
bool ControlTick::stepSession() {
    PublicValues& values = parts_.values;
    if (countSilence(values, parts_.gui.lblCom)) {
        recoverLinks(parts_);
        return false;
    }
    if (values.motLinkUp) updateHead(values, parts_.gui, parts_.myRobot);
    arbitrateOverride(values);
    stepMode(parts_);
    showDiagnostics();
    stepStatusBroadcast(parts_.gui, sendStatus_);
    return true;
}

void ControlTick::showDiagnostics() {
    const PublicValues& values = parts_.values;
    frmGUI& gui = parts_.gui;
    gui.txtRobotP2PTask.setText("0");
    gui.lblJoy.setCaption(booleanText(values.manualPanelActive));
    gui.lblth1.setCaption(std::to_string(gui.densityThreshold().value()));
    gui.lblth2.setCaption(std::to_string(values.workingGas.value()));
    gui.lblCa.setCaption(booleanText(values.vfhActive));
}

void ControlTick::displayTimer_Timer() {
    const PublicValues& values = parts_.values;
    if (!values.displayEnabled) return;
    frmGUI& gui = parts_.gui;
    constexpr int kDecimals = 3;
    for (int i = gui.IRT.first(); i <= gui.IRT.last(); ++i)
        resumeOnError([&] {
            gui.IRT(i).setText(formatFixed(values.irRange.at(static_cast<std::size_t>(i - 1)), kDecimals));
        });
    for (int i = gui.SonarT.first(); i <= gui.SonarT.last(); ++i)
        resumeOnError([&] {
            gui.SonarT(i).setText(formatFixed(values.sonarRange.at(static_cast<std::size_t>(i)), kDecimals));
        });
    resumeOnError([&] { gui.picRobotMap.refresh(); });
}

}  // namespace quorrin
