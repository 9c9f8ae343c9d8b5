#include "console/holder_glance.h"

namespace quorrin {

namespace {

std::string whatHoldsMean(const PublicValues& values) {
    return values.robotMode == kModeJoy ? "drives the robot" : "holds the robot; it is not in JOY yet";
}

Glance heldByHand(const PublicValues& values, const frmGUI& gui, const Form& panel) {
    const bool client = gui.ConnectionList.count() > 0;
    if (panel.shown()) {
        if (client && values.remoteCommandActive)
            return {"control panel", "and the remote client; the last one to command wins", Tone::warning};
        return {"control panel", whatHoldsMean(values), Tone::good};
    }
    if (!client) return {"nobody", "held, and nobody is connected", Tone::bad};
    if (!values.remoteCommandActive) return {"remote client", "holds the robot and is silent", Tone::warning};
    return {"remote client", whatHoldsMean(values), Tone::good};
}

}  // namespace

Glance holderGlance(const PublicValues& values, const frmGUI& gui, const Form& panel) {
    if (values.joystickActive) return {"joystick", whatHoldsMean(values), Tone::good};
    if (values.manualPanelActive) return heldByHand(values, gui, panel);
    if (!values.tickEnabled) return {"nobody", "", Tone::off};
    if (values.robotMode == kModeWondering) return {"by itself", "The robot wanders.", Tone::good};
    if (values.robotMode == kModeJoy) return {"nobody", "The levels stand as they were left.", Tone::warning};
    return {"nobody", "", Tone::off};
}

Glance remoteGlance(const PublicValues& values, const frmGUI& gui) {
    const std::size_t count = gui.ConnectionList.count();
    const std::string& problem = values.listenProblem;
    if (count == 0 && !problem.empty()) return {"no calls", problem, Tone::bad};
    if (count == 0)
        return {"none", gui.chkRemote.checked() ? "calls are answered" : "calls are asked about", Tone::off};
    std::string detail = gui.ConnectionList.line(0);
    if (count > 1) detail += " and " + std::to_string(count - 1) + " more";
    if (!values.remoteCommandActive) detail += ", silent";
    if (!problem.empty()) return {"connected", detail + "; " + problem, Tone::warning};
    return {"connected", detail, Tone::good};
}

Glance stuckGlance(const PublicValues& values) {
    if (!values.inStuck) return {"free", "", values.antiStuckEnabled ? Tone::good : Tone::off};
    std::string side = "backing out";
    if (values.stuckLeft && values.stuckRight) {
        side += ", both wheels push";
    } else if (values.stuckLeft) {
        side += ", the left wheel pushes";
    } else if (values.stuckRight) {
        side += ", the right wheel pushes";
    }
    return {"STUCK", side, Tone::warning};
}

}  // namespace quorrin
