#include "navigation/ssgps.h"

#include "base/rounding.h"
#include "navigation/landmarks.h"
#include "navigation/task_timer.h"

namespace quorrin {

namespace {

constexpr int kLostLimit = 50;
constexpr int kLostSaturated = 60;

}  // namespace

SSGPS::SSGPS(Clock& clock, PoseValues& pose, const SensorValues& sensors, LandmarkValues& landmarks,
             NavigationControls& controls, QuorrinSDK& myRobot)
    : clock_(clock),
      pose_(pose),
      sensors_(sensors),
      landmarks_(landmarks),
      controls_(controls),
      myRobot_(myRobot) {}

bool SSGPS::GetLatest(double&, double&, double&, double&, Integer&) {
    return false;
}

void SSGPS::run() {
    const Long interval = roundToLong(SonarGPSInterval);
    EstTimer_ = makeTaskTimer(clock_, {interval, 1, true, true, "SSGPS EstTimer_Timer"},
                              [this, interval] { EstTimer_Timer(interval); });
}

void SSGPS::task_end() {
    releaseTaskTimer(EstTimer_);
}

void SSGPS::EstTimer_Timer(Long /*elaspTime*/) {
    if (landmarks_.landmarkRunEnabled && sensors_.encoderDataValid) tryFix();
    if (landmarks_.landmarkHold == 0) selectZonePairs(landmarks_, pose_.robotX, pose_.robotY, myRobot_);
    clearLandmarkRanges(landmarks_);
}

void SSGPS::tryFix() {
    double x = 0;
    double y = 0;
    double heading = 0;
    if (!landmarkFix(landmarks_, x, y, heading)) {
        controls_.chkGPS.setChecked(false);
        ++pose_.lostFixCount;
        if (pose_.lostFixCount >= kLostLimit) pose_.lostFixCount = kLostSaturated;
        return;
    }
    controls_.chkGPS.setChecked(true);
    pose_.lostFixCount = 0;
    pose_.robotX = pose_.fixX = pose_.fixX2 = x;
    pose_.robotY = pose_.fixY = pose_.fixY2 = y;
    pose_.robotTheta = pose_.fixTheta = pose_.fixTheta2 = heading;
    landmarks_.landmarkLocked = true;
}

}  // namespace quorrin
