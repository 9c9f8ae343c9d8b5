#include "session/mode_steps.h"

#include "session/power_bits.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

void holdHeadStill(TickParts& parts) {
    constexpr int kDurationMs = 500;
    const frmGUI& neutral = parts.gui;
    parts.myRobot.MoveServosTimed({neutral.cHeadUpDown, neutral.cHeadLeftRight, neutral.cMouthUpDown,
                                   kNotCommanded, neutral.cEyeUpDown, neutral.cEyeLeftRight},
                                  kDurationMs);
    parts.clock.block(kDurationMs);
}

// From the driver's hold to the closed motion gateway.
void closeMotionSide(TickParts& parts) {
    PublicValues& values = parts.values;
    suspendDriver(parts.gui);
    stopDrives(parts.myRobot);
    clearPowerBits(values, kPowerMotion);
    values.motLinkUp = false;
    values.motWarmupCount = 0;
    parts.EndTask(GeneralConstants::kMotionGatewayTitle);
}

void leaveWonderingForIdle(TickParts& parts) {
    PublicValues& values = parts.values;
    values.joystickActive = false;
    holdHeadStill(parts);
    clearRequests(values);
    values.useWanderInput = false;
    closeMotionSide(parts);
    values.robotMode = kModeIdle;
    values.previousMode = kModeWondering;
    parts.gui.txtRobotStatus.setText("IDLE");
}

void leaveWonderingForJoy(TickParts& parts) {
    PublicValues& values = parts.values;
    clearRequests(values);
    stopDrives(parts.myRobot);
    values.landmarkLocked = true;
    values.landmarkRunEnabled = false;
    setJoyThresholds(parts.gui);
    values.useWanderInput = false;
    continueDriver(parts.gui);
    values.robotMode = kModeJoy;
    parts.gui.txtRobotStatus.setText("JOY");
    values.previousMode = kModeWondering;
}

// useWanderInput stays as it was, unlike the leave from "wondering".
void leaveJoyForIdle(TickParts& parts) {
    PublicValues& values = parts.values;
    values.joystickActive = false;
    if (values.manualPanelActive) {
        values.manualPanelActive = false;
        parts.panel.hide();
    }
    holdHeadStill(parts);
    clearRequests(values);
    closeMotionSide(parts);
    values.robotMode = kModeIdle;
    parts.gui.txtRobotStatus.setText("IDLE");
    values.previousMode = kModeJoy;
}

void leaveJoyForWondering(TickParts& parts) {
    PublicValues& values = parts.values;
    values.joystickActive = false;
    clearRequests(values);
    suspendDriver(parts.gui);
    setWanderThresholds(parts.gui);
    values.useWanderInput = true;
    continueDriver(parts.gui);
    values.robotMode = kModeWondering;
    parts.gui.txtRobotStatus.setText("wondering");
    values.previousMode = kModeJoy;
}

void stepWondering(TickParts& parts) {
    parts.gui.cmdChEn.setPicture(kPictureWondering);
    if (parts.values.requestIdle) {
        leaveWonderingForIdle(parts);
    } else if (parts.values.requestJoy) {
        leaveWonderingForJoy(parts);
    }
}

void stepJoy(TickParts& parts) {
    parts.gui.cmdChEn.setPicture(kPictureJoy);
    if (parts.values.requestIdle) {
        leaveJoyForIdle(parts);
    } else if (parts.values.requestWander) {
        leaveJoyForWondering(parts);
    }
}

}  // namespace

void setWanderThresholds(NavigationControls& controls) {
    controls.setThresholds(40, 100, 3, 3);
}

void setJoyThresholds(NavigationControls& controls) {
    controls.setThresholds(41, 100, 3, 3);
}

void clearRequests(ModeValues& mode) {
    mode.requestIdle = false;
    mode.requestWander = false;
    mode.requestJoy = false;
}

void stepMode(TickParts& parts) {
    switch (parts.values.robotMode.value()) {
        case kModeWondering:
            stepWondering(parts);
            break;
        case kModeJoy:
            stepJoy(parts);
            break;
        case kModeIdle:
            stepIdle(parts);
            break;
        default:
            break;
    }
}

}  // namespace quorrin
