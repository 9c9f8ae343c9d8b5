#include "navigation/speed_p2p_vfh.h"

#include <cmath>

#include "base/checked_real.h"
#include "base/rounding.h"
#include "navigation/drive_command.h"
#include "navigation/heading_search.h"
#include "navigation/math/angles.h"
#include "navigation/math/wheels.h"
#include "navigation/speed_laws.h"
#include "navigation/task_timer.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

constexpr int kPeriodMs = 100;
constexpr int kResolutionMs = 10;
constexpr int kPositionMode = 1;
constexpr int kVelocityMode = 2;
constexpr int kTrueAsInteger = -1;

constexpr double kTicksPerSecond = 10.0;
constexpr double kArrivalMargin_m = 0.02;
constexpr double kForgetStep_m = 0.01;
constexpr double kFinalHeading_rad = 0.05;
constexpr double kSpinMsPerRadian = 800.0;
constexpr double kSpinMs = 500.0;

}  // namespace

speedP2PVFH::speedP2PVFH(Clock& clock, PublicValues& values, NavigationControls& controls,
                         QuorrinSDK& myRobot)
    : clock_(clock), values_(values), controls_(controls), myRobot_(myRobot) {
    CAStatus.reserve(32);  // so that no word of a tick needs the heap
    RunTimer_ = makeTaskTimer(clock_, {kPeriodMs, kResolutionMs, true, false, "speedP2PVFH RunTimer_Timer"},
                              [this] { RunTimer_Timer(Long(kPeriodMs)); });
}

void speedP2PVFH::run() {
    Status = "run";
    myRobot_.SetDriveControlMode(0, kVelocityMode);
    myRobot_.SetDriveControlMode(1, kVelocityMode);
    active_ = true;
    if (RunTimer_) RunTimer_->setEnabled(true);
    tickCount_ = 0;
    tickLimit_ = roundToInteger(targettime * kTicksPerSecond);
    toleranceNow_ = lowerTolerance;
    turnDoneFlag_ = true;
    values_.finishCount = 0;
}

void speedP2PVFH::task_end() {
    releaseTaskTimer(RunTimer_);
    turnTimer_.reset();
}

void speedP2PVFH::RunTimer_Timer(Long /*lMilliseconds*/) {
    if (!active_) return;
    if (heldByLandmarks()) return;
    const double dx = TargetX - values_.robotX;
    const double dy = TargetY - values_.robotY;
    targetDistanceM_ = squareRoot(dx * dx + dy * dy, "target distance");
    if (values_.inStuck) return;
    if (Status == "turn" || toleranceNow_ + kArrivalMargin_m >= targetDistanceM_) {
        arrive();
        return;
    }
    if (forgetable) forget();
    desiredHeading_ = bearingBetween(values_.robotX, values_.robotY, TargetX, TargetY);
    bool noWay = false;
    if (values_.vfhActive) noWay = searchDetour();
    wrapPi(desiredHeading_);
    reverseFlag_ = values_.reverseDrive;
    referenceHeading_ = values_.robotTheta;
    if (reverseFlag_) {
        referenceHeading_ -= GeneralConstants::kPi;
        wrapPi(referenceHeading_);
    }
    headingError_ = desiredHeading_ - referenceHeading_;
    wrapPi(headingError_);
    chooseSpeeds(noWay);
    command();
}

bool speedP2PVFH::heldByLandmarks() const {
    if (values_.landmarkHold == kTrueAsInteger) return values_.landmarkSelectPending;
    return values_.landmarkHold != 0;
}

void speedP2PVFH::forget() {
    ++tickCount_;
    controls_.txtCnt.setText(std::to_string(tickCount_.value()));
    if (tickCount_ > tickLimit_) toleranceNow_ += kForgetStep_m;
}

bool speedP2PVFH::searchDetour() {
    const HeadingChoice choice = searchHeading(desiredHeading_, values_, controls_);
    if (choice.outcome == HeadingOutcome::noOpening) stopDrives(myRobot_);
    values_.displayHeadingDeg = choice.displayDeg;
    desiredHeading_ = choice.heading;
    CAStatus = outcomeWord(choice.outcome);
    return choice.outcome == HeadingOutcome::noOpening || choice.outcome == HeadingOutcome::tooNarrow;
}

void speedP2PVFH::chooseSpeeds(bool noWay) {
    const BodySpeed speed =
        speedLaws({headingError_, targetDistanceM_, TargetForwardspeed, maxTurnspeed, nonstop});
    turnSpeed_ = speed.turn;
    forwardSpeed_ = speed.forward;
    if (!values_.vfhActive) return;
    const Integer density = densityTowards(desiredHeading_, values_);
    forwardSpeed_ = slowedByDensity(speed, TargetForwardspeed, density, controls_.speedSaturation());
    if (noWay) {
        forwardSpeed_ = 0;
        turnSpeed_ = 0;
    }
}

void speedP2PVFH::command() {
    const double leftRate = leftWheelRate(forwardSpeed_, turnSpeed_);
    const double rightRate = rightWheelRate(forwardSpeed_, turnSpeed_);
    if (reverseFlag_) {
        values_.wheelCmdLeft = radPerSecToCounts(rightRate);
        values_.wheelCmdRight = -radPerSecToCounts(leftRate);
    } else {
        values_.wheelCmdLeft = -radPerSecToCounts(leftRate);
        values_.wheelCmdRight = radPerSecToCounts(rightRate);
    }
    if (values_.motionInhibit) return;
    myRobot_.SetDriveVelocities(
        bothDrives(roundToInteger(values_.wheelCmdLeft), roundToInteger(values_.wheelCmdRight)));
}

void speedP2PVFH::arrive() {
    if (nonstop) {
        finish();  // the last command keeps running
        return;
    }
    if (!finalPosture) {
        stopDrives(myRobot_);
        finish();
        return;
    }
    wrapPi(TargetAngel);
    headingError_ = TargetAngel - values_.robotTheta;
    wrapPi(headingError_);
    if (!(std::fabs(headingError_) > kFinalHeading_rad)) {
        ++values_.finishCount;
        if (values_.finishCount > 0) {
            finish();
            values_.finishCount = 0;
        }
        return;
    }
    if (turnDoneFlag_) startSpin();
}

void speedP2PVFH::finish() {
    if (RunTimer_) RunTimer_->setEnabled(false);
    if (PathFollowComplete) PathFollowComplete();
}

void speedP2PVFH::startSpin() {
    const Long left = spinTarget(values_.encoderLeft, headingError_);
    const Long right = spinTarget(values_.encoderRight, headingError_);
    Status = "turn";
    turnDoneFlag_ = false;
    myRobot_.SetDriveControlMode(0, kPositionMode);
    myRobot_.SetDriveControlMode(1, kPositionMode);
    const double duration_ms = std::fabs(headingError_) * kSpinMsPerRadian + kSpinMs;
    if (!values_.motionInhibit)
        myRobot_.MoveDrivesTimed(bothDrives(Integer(left), Integer(right)), roundToInteger(duration_ms));
    const Long interval = roundToLong(duration_ms);
    turnTimer_ = makeTaskTimer(clock_, {interval, kResolutionMs, false, true, "speedP2PVFH turnTimer_Timer"},
                               [this, interval] { turnTimer_Timer(interval); });
}

void speedP2PVFH::turnTimer_Timer(Long /*lMilliseconds*/) {
    turnDoneFlag_ = true;
    releaseTaskTimer(turnTimer_);
}

void speedP2PVFH::wrapSector(Integer in, Integer& out) const {
    out = quorrin::wrapSector(in);
}

}  // namespace quorrin
