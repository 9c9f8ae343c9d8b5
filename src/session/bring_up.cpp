// The motion bring-up sequence. startStep counts its ticks: the gateway is started at 1, the sequence waits
// for the link as long as it takes, shows the robot's face, and after 37 more ticks the robot may move. The
// two sequences wait at different steps, and the one towards "JOY" stops the drives where the other does not.
#include "session/mode_steps.h"
#include "session/power_bits.h"

namespace quorrin {

namespace {

constexpr int kFirstStep = 1;
constexpr int kLastStep = 40;

void restIdle(TickParts& parts) {
    PublicValues& values = parts.values;
    clearPowerBits(values, kPowerMotion);
    suspendDriver(parts.gui);
    values.motLinkUp = false;
    values.motWarmupCount = 0;
    values.motSilentTicks = 0;
    parts.gui.cmdChEn.setPicture(kPictureIdle);
}

void forgetMotionLink(LinkValues& link) {
    link.motLinkUp = false;
    link.motWarmupCount = 0;
}

void showFace(TickParts& parts) {
    parts.myRobot.ShowLcdBitmap(parts.values.applicationFolder + "/quorrin128.bmp");
}

void enterWondering(TickParts& parts) {
    PublicValues& values = parts.values;
    values.startStep = 0;
    clearRequests(values);
    setWanderThresholds(parts.gui);
    values.useWanderInput = true;
    continueDriver(parts.gui);
    values.robotMode = kModeWondering;
    values.previousMode = kModeIdle;
    parts.gui.txtRobotStatus.setText("wondering");
}

void enterJoy(TickParts& parts) {
    PublicValues& values = parts.values;
    values.startStep = 0;
    clearRequests(values);
    stopDrives(parts.myRobot);
    setJoyThresholds(parts.gui);
    values.landmarkLocked = true;
    values.landmarkRunEnabled = true;  // unlike the entry from "wondering"
    values.useWanderInput = false;
    continueDriver(parts.gui);
    values.robotMode = kModeJoy;
    parts.gui.txtRobotStatus.setText("JOY");
    values.previousMode = kModeIdle;
}

void stepTowardsWondering(TickParts& parts) {
    PublicValues& values = parts.values;
    ++values.startStep;
    switch (values.startStep.value()) {
        case kFirstStep:
            setPowerBits(values, kPowerSubsystemsAndMotion);
            forgetMotionLink(values);
            parts.programs.start(values.gatewayMotExePath);
            break;
        case 3:
            if (values.motLinkUp) {
                showFace(parts);
            } else {
                values.startStep = 2;
            }
            break;
        case kLastStep:
            enterWondering(parts);
            break;
        default:
            break;
    }
}

void stepTowardsJoy(TickParts& parts) {
    PublicValues& values = parts.values;
    ++values.startStep;
    switch (values.startStep.value()) {
        case kFirstStep:
            setPowerBits(values, kPowerSubsystemsAndMotion);
            parts.programs.start(values.gatewayMotExePath);
            forgetMotionLink(values);
            break;
        case 2:
            if (values.motLinkUp) {
                stopDrives(parts.myRobot);
            } else {
                values.startStep = 1;
            }
            break;
        case 3:
            showFace(parts);
            break;
        case kLastStep:
            enterJoy(parts);
            break;
        default:
            break;
    }
}

}  // namespace

void stepIdle(TickParts& parts) {
    const PublicValues& values = parts.values;
    if (values.startStep == 0) restIdle(parts);
    if (values.requestWander) {
        stepTowardsWondering(parts);
    } else if (values.requestJoy) {
        stepTowardsJoy(parts);
    }
}

}  // namespace quorrin
