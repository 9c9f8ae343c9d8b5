#include "session/motion_session.h"

#include <algorithm>

#include "session/tick_parts.h"

namespace quorrin {

namespace {

// Which landmarks are in use and what was ranged; the tables of landmarks themselves stay.
void clearLandmarkState(LandmarkValues& landmarks) {
    landmarks.landmarkHold = 0;
    landmarks.pairA1 = 0;
    landmarks.pairA2 = 0;
    landmarks.pairB1 = 0;
    landmarks.pairB2 = 0;
    landmarks.zoneRow = 0;
    landmarks.zoneChangeCount = 0;
    std::fill(landmarks.landmarkRangeA.begin(), landmarks.landmarkRangeA.end(), 0.0);
    std::fill(landmarks.landmarkRangeB.begin(), landmarks.landmarkRangeB.end(), 0.0);
}

void clearPose(PoseValues& pose) {
    for (double* value : {&pose.robotX, &pose.robotY, &pose.robotTheta, &pose.fixX, &pose.fixY,
                          &pose.fixTheta, &pose.fixX2, &pose.fixY2, &pose.fixTheta2})
        *value = 0;
}

}  // namespace

void runRobot(PublicValues& values, frmGUI& gui) {
    values.motSilentTicks = 0;
    values.tiSilentTicks = 0;
    values.motLinkUp = false;
    values.motWarmupCount = 0;
    values.remoteCommandActive = false;
    values.joyOverride = false;
    gui.alarmCnt = 0;
    gui.alarmEnd = 0;
    gui.iniPar = true;
    values.lostFixCount = 60;

    values.noPowerVolts = 9.9;
    gui.txtNopowerth.setText("9.9");

    clearLandmarkState(values);
    clearPose(values);
    values.inStuck = false;
    values.encoderDataValid = false;

    values.robotMode = kModeIdle;
    values.requestWander = true;
    values.requestJoy = false;
    values.requestIdle = false;

    values.pingEnabled = false;
    values.tickEnabled = true;
    values.displayEnabled = true;
    values.antiStuckEnabled = true;
    values.landmarkRunEnabled = true;
    values.landmarkLocked = false;

    suspendDriver(gui);
    gui.resetMOTTI = false;
    gui.resetCnt = 0;
    gui.cmdTalk.setEnabled(true);
}

void suspendRobot(PublicValues& values, frmGUI& gui, QuorrinSDK& myRobot) {
    stopDrives(myRobot);
    gui.tmrServoControl.setRunning(false);
    values.pingEnabled = false;
    values.tickEnabled = false;
    values.displayEnabled = false;
    values.antiStuckEnabled = false;
    values.landmarkLocked = true;
    values.landmarkRunEnabled = false;
    suspendDriver(gui);
}

}  // namespace quorrin
