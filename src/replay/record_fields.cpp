#include "replay/record_fields.h"

namespace quorrin {

// Adds each field under the name that it has in the code.
#define QUORRIN_FIELD(field) table.add(#field, values.field)

void addRecordFields(FieldTable& table, const PublicValues& values) {
    addSessionFields(table, values);
    addRobotFields(table, values);
    addNavigationFields(table, values);
}

// Mode, links, levels, paths, and what the remote, camera and voice rooms share.
void addSessionFields(FieldTable& table, const PublicValues& values) {
    QUORRIN_FIELD(robotMode);
    QUORRIN_FIELD(previousMode);
    QUORRIN_FIELD(requestIdle);
    QUORRIN_FIELD(requestWander);
    QUORRIN_FIELD(requestJoy);
    QUORRIN_FIELD(startStep);
    QUORRIN_FIELD(joyOverride);
    QUORRIN_FIELD(tickEnabled);
    QUORRIN_FIELD(displayEnabled);
    QUORRIN_FIELD(pingEnabled);
    QUORRIN_FIELD(autoStartPending);
    QUORRIN_FIELD(manualPanelActive);
    QUORRIN_FIELD(joystickActive);
    QUORRIN_FIELD(aboutOpen);
    QUORRIN_FIELD(zoomCameraOpen);
    QUORRIN_FIELD(motLinkUp);
    QUORRIN_FIELD(tiLinkUp);
    QUORRIN_FIELD(motWarmupCount);
    QUORRIN_FIELD(tiWarmupCount);
    QUORRIN_FIELD(motSilentTicks);
    QUORRIN_FIELD(tiSilentTicks);
    QUORRIN_FIELD(steeringLevel);
    QUORRIN_FIELD(gasLevel);
    QUORRIN_FIELD(brakeLevel);
    QUORRIN_FIELD(joystickY);
    QUORRIN_FIELD(useWanderInput);
    QUORRIN_FIELD(caEnabled);
    QUORRIN_FIELD(gatewayMotIniPath);
    QUORRIN_FIELD(gatewayTiIniPath);
    QUORRIN_FIELD(gatewayTiExePath);
    QUORRIN_FIELD(gatewayMotExePath);
    QUORRIN_FIELD(robotIp);
    QUORRIN_FIELD(robotPort);
    QUORRIN_FIELD(sdkIniPath);
    QUORRIN_FIELD(gatewayWindowTitle);
    QUORRIN_FIELD(remoteCommandsSeen);
    QUORRIN_FIELD(remoteCommandActive);
    QUORRIN_FIELD(remoteListening);
    QUORRIN_FIELD(callAccepted);
    QUORRIN_FIELD(listenProblem);
    QUORRIN_FIELD(commandCount);
    QUORRIN_FIELD(lastCommandCount);
    QUORRIN_FIELD(videoClientConnected);
    QUORRIN_FIELD(videoClientReady);
    QUORRIN_FIELD(videoWaitFrames);
    QUORRIN_FIELD(frameWatchdog);
    QUORRIN_FIELD(jpegQuality);
    QUORRIN_FIELD(voiceChained);
    QUORRIN_FIELD(playbackOpen);
    QUORRIN_FIELD(playbackBlockCount);
    QUORRIN_FIELD(voiceBufferIndex);
    QUORRIN_FIELD(voiceQuietTicks);
    QUORRIN_FIELD(joystickGear);
    QUORRIN_FIELD(joystickDriveLatch);
}

// Power, servos, sensors and drives.
void addRobotFields(FieldTable& table, const PublicValues& values) {
    QUORRIN_FIELD(powerByte);
    QUORRIN_FIELD(refVolts);
    QUORRIN_FIELD(battery1Volts);
    QUORRIN_FIELD(battery2Volts);
    QUORRIN_FIELD(dcInVolts);
    QUORRIN_FIELD(battery1Temp);
    QUORRIN_FIELD(battery2Temp);
    QUORRIN_FIELD(chargerStatus);
    QUORRIN_FIELD(chargerFlags);
    QUORRIN_FIELD(chargeFlash);
    QUORRIN_FIELD(battery1Flash);
    QUORRIN_FIELD(battery2Flash);
    QUORRIN_FIELD(noPowerVolts);
    QUORRIN_FIELD(headCmdUpDown);
    QUORRIN_FIELD(headCmdLeftRight);
    QUORRIN_FIELD(mouthCmd);
    QUORRIN_FIELD(eyeUpDownInit);
    QUORRIN_FIELD(eyeLeftRightInit);
    QUORRIN_FIELD(servoOut1);
    QUORRIN_FIELD(servoOut2);
    QUORRIN_FIELD(servoOut3);
    QUORRIN_FIELD(servoOut4);
    QUORRIN_FIELD(servoOut5);
    QUORRIN_FIELD(servoOut6);
    QUORRIN_FIELD(mouthSteps);
    table.addList("irRange", values.irRange, 0);
    table.addList("irRadius", values.irRadius, 0);
    table.addList("irAngle", values.irAngle, 0);
    table.addList("sonarRange", values.sonarRange, 0);
    table.addList("sonarRadius", values.sonarRadius, 0);
    table.addList("sonarAngle", values.sonarAngle, 0);
    table.addList("humanRaw", values.humanRaw, 0);
    table.addList("humanFlags", values.humanFlags, 0);
    QUORRIN_FIELD(humanLocation);
    QUORRIN_FIELD(encoderLeft);
    QUORRIN_FIELD(encoderRight);
    QUORRIN_FIELD(wheelSpeedLeft);
    QUORRIN_FIELD(wheelSpeedRight);
    QUORRIN_FIELD(motorCurrentLeft);
    QUORRIN_FIELD(motorCurrentRight);
    QUORRIN_FIELD(encoderDataValid);
    QUORRIN_FIELD(motorHeatLeft);
    QUORRIN_FIELD(motorHeatRight);
    QUORRIN_FIELD(motionInhibit);
}

#undef QUORRIN_FIELD

}  // namespace quorrin
