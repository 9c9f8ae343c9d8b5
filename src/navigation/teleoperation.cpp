#include "navigation/teleoperation.h"

#include <cmath>

#include "base/program_error.h"
#include "navigation/math/angles.h"
#include "navigation/next_point.h"
#include "navigation/task_timer.h"

namespace quorrin {

namespace {

constexpr float kNavigatorPeriodMs = 100;
constexpr double kArrivalRadius_m = 0.12;

}  // namespace

Teleoperation::Teleoperation(Clock& clock, PublicValues& values, NavigationControls& controls,
                             QuorrinSDK& myRobot)
    : maxTurnspeed(degToRad(45.0)), clock_(clock), values_(values), controls_(controls), myRobot_(myRobot) {}

void Teleoperation::continue_() {
    active_ = true;
}

void Teleoperation::suspend() {
    active_ = false;
    stopDrives(myRobot_);
}

void Teleoperation::run() {
    const Long interval(timeInterval);
    ConTimer_ = makeTaskTimer(clock_, {interval, 10, true, true, "Teleoperation ConTimer_Timer"},
                              [this, interval] { ConTimer_Timer(interval); });
    active_ = true;
    navigator_ = std::make_unique<speedP2PVFH>(clock_, values_, controls_, myRobot_);
    nextpoint();
    navigator_->run();
    suspend();
}

void Teleoperation::task_end() {
    releaseTaskTimer(ConTimer_);
    if (!navigator_) return;
    navigator_->task_end();
    navigator_.reset();
}

void Teleoperation::ConTimer_Timer(Long /*lMilliseconds*/) {
    if (!navigator_) throw ProgramError("Teleoperation: no navigator");
    if (!active_) {
        navigator_->suspend();
        return;
    }
    values_.vfhActive = values_.caEnabled;
    nextpoint();
    navigator_->continue_();
}

void Teleoperation::nextpoint() {
    if (!navigator_) throw ProgramError("Teleoperation: no navigator");
    target_ = steer(readCommand(values_, controls_), values_.joystickY, values_);
    const double bearing = values_.robotTheta + target_.offset;
    navigator_->TargetX = values_.robotX + std::cos(bearing) * targetDistance;
    navigator_->TargetY = values_.robotY + std::sin(bearing) * targetDistance;
    navigator_->finalPosture = false;
    navigator_->nonstop = true;
    navigator_->TargetForwardspeed = maxforwardspeed * target_.speedFraction;
    navigator_->timeInterval = kNavigatorPeriodMs;
    navigator_->lowerTolerance = kArrivalRadius_m;
    navigator_->forgetable = false;
    navigator_->maxTurnspeed = maxTurnspeed;
}

}  // namespace quorrin
