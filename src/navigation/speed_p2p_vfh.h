// The point-to-point navigator: ten times a second a wanted heading and a pair of wheel velocities towards
// the target, round what the histograms show.
//
// States: idle (RunTimer off; after construction and every arrival), suspended (timer on, not active),
// holding (inStuck or landmark hold), driving ("run"), spinning ("turn", turnTimer runs), checking ("turn",
// spin done). suspend leaves the drives as they are: the last wheel command stays in force. A nonstop arrival
// too. Velocity mode of the drives is restored only by the next run.
//
// Heading search and speed laws are in heading_search.h and speed_laws.h. Metres, radians, seconds; wheel
// commands in counts per second, left mirrored.
//
// The owner constructs it, sets the target fields (at any time), calls run, continue_ and suspend as it
// likes, and task_end once. Catches nothing: a wheel count that does not fit, or a speedSaturation of 0 while
// the search runs, is fatal.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/checked_int.h"
#include "platform/timer_mm.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/navigation_controls.h"
#include "session/record/public_values.h"

namespace quorrin {

class speedP2PVFH {
  public:
    speedP2PVFH(Clock& clock, PublicValues& values, NavigationControls& controls, QuorrinSDK& myRobot);

    double TargetX = 0;             // m
    double TargetY = 0;             // m
    double TargetAngel = 0;         // final heading, rad; used when finalPosture
    double TargetForwardspeed = 0;  // m/s
    double maxTurnspeed = 0;        // rad/s
    bool forgetable = false;        // may be given up by widening the tolerance
    bool nonstop = false;           // neither slow down near the target nor stop there
    bool finalPosture = false;      // turn to TargetAngel on arrival
    double targettime = 0;          // s before forgetable starts to widen
    float timeInterval = 0;         // written by the driver, without effect: the period is 100 ms
    double lowerTolerance = 0;      // arrival radius at run, m
    double upperTolerance = 0;      // not read
    std::string Status;             // "run", "turn" during a final turn
    // Outcome of the last heading search: "openfound", "totallyopen", "openwithnochange", "openwithchange",
    // "stuck".
    std::string CAStatus;

    // Raised on every arrival.
    std::function<void()> PathFollowComplete;

    void run();
    void Kill() {}
    void continue_() { active_ = true; }
    void suspend() { active_ = false; }
    void task_end();
    void RunTimer_Timer(Long lMilliseconds);
    void wrapSector(Integer in, Integer& out) const;
    void turnTimer_Timer(Long lMilliseconds);

    bool active() const { return active_; }
    bool running() const { return RunTimer_ && RunTimer_->enabled(); }
    double forwardSpeed() const { return forwardSpeed_; }
    double turnSpeed() const { return turnSpeed_; }
    double desiredHeading() const { return desiredHeading_; }
    double headingError() const { return headingError_; }
    double targetDistanceM() const { return targetDistanceM_; }
    Integer tickCount() const { return tickCount_; }
    double toleranceNow() const { return toleranceNow_; }
    Integer tickLimit() const { return tickLimit_; }
    bool turnDoneFlag() const { return turnDoneFlag_; }
    double referenceHeading() const { return referenceHeading_; }
    bool reverseFlag() const { return reverseFlag_; }
    // The one-shot of a spin; null when none is under way.
    const TimerMM* turnTimer() const { return turnTimer_.get(); }

  private:
    bool heldByLandmarks() const;
    void forget();
    bool searchDetour();
    void chooseSpeeds(bool noWay);
    void command();
    void arrive();
    void finish();
    void startSpin();

    Clock& clock_;
    PublicValues& values_;
    NavigationControls& controls_;
    QuorrinSDK& myRobot_;
    bool active_ = false;
    double forwardSpeed_ = 0;
    double turnSpeed_ = 0;
    double desiredHeading_ = 0;
    double headingError_ = 0;
    double targetDistanceM_ = 0;
    Integer tickCount_;
    double toleranceNow_ = 0;
    Integer tickLimit_;
    bool turnDoneFlag_ = false;
    double referenceHeading_ = 0;
    bool reverseFlag_ = false;
    std::unique_ptr<TimerMM> RunTimer_;
    std::unique_ptr<TimerMM> turnTimer_;
};

}  // namespace quorrin
