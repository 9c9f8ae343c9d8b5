// The driver: turns a steering command into a moving target for the navigator it holds, every timeInterval
// milliseconds. It never drives the wheels itself.
//
// The target lies targetDistance metres ahead, turned by the steering command, at a speed from the speed
// command; next_point.h has the arithmetic. Wander and operator differ only in where the command comes from.
// suspend stops the drives; the navigator's own suspend does not.
//
// The owner constructs it, sets the public fields, calls run (which ends suspended) once and task_end once.
// Catches nothing: a wander speed that is no whole number is fatal when it is read.
#pragma once

#include <memory>

#include "base/checked_int.h"
#include "navigation/next_point.h"
#include "navigation/speed_p2p_vfh.h"
#include "platform/timer_mm.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/navigation_controls.h"
#include "session/record/public_values.h"

namespace quorrin {

class Teleoperation {
  public:
    Teleoperation(Clock& clock, PublicValues& values, NavigationControls& controls, QuorrinSDK& myRobot);

    Integer timeInterval = 100;    // period of ConTimer, ms
    double targetDistance = 0;     // metres ahead of the robot
    double maxforwardspeed = 0.6;  // full scale, m/s
    double maxTurnspeed;           // rad/s, 45 degrees by default

    void continue_();
    void suspend();
    void run();
    void task_end();
    void ConTimer_Timer(Long lMilliseconds);
    void nextpoint();

    bool active() const { return active_; }
    // Of the last step.
    double speedFraction() const { return target_.speedFraction; }
    double steerFraction() const { return target_.steerFraction; }
    // The held navigator; null before run and after task_end.
    const speedP2PVFH* navigator() const { return navigator_.get(); }

  private:
    Clock& clock_;
    PublicValues& values_;
    NavigationControls& controls_;
    QuorrinSDK& myRobot_;
    bool active_ = false;
    SteeringTarget target_;
    std::unique_ptr<TimerMM> ConTimer_;
    std::unique_ptr<speedP2PVFH> navigator_;
};

}  // namespace quorrin
