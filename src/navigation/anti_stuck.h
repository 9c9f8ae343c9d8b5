// The stuck detector: notices a wheel that pushes without turning and runs the robot backwards for as long as
// that lasts, every timeInterval milliseconds.
//
// States: off (antiStuckEnabled false; flags 0, filters kept), watching, holding (inStuck true; the reverse
// of the last wheel command is sent on every tick). While it holds, the navigator stands aside through
// inStuck. The measure and the counts are in stuck_detector.h. The owner calls run once and task_end once.
// Catches nothing: a wheel speed of exactly -1 divides by zero and is fatal.
#pragma once

#include <functional>
#include <memory>

#include "base/checked_int.h"
#include "navigation/stuck_detector.h"
#include "platform/timer_mm.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

class AntiStuck {
  public:
    AntiStuck(Clock& clock, DriveValues& drive, const SensorValues& sensors, QuorrinSDK& myRobot);

    Integer timeInterval = 200;  // period of chkTimer, ms

    // Declared and never raised: the state shows in the shared flags.
    std::function<void()> Instuck;
    std::function<void()> stuckClear;

    void run();
    void task_end();
    void chkTimer_Timer(Long lMilliseconds);

    const StuckState& state() const { return state_; }

  private:
    Clock& clock_;
    DriveValues& drive_;
    const SensorValues& sensors_;
    QuorrinSDK& myRobot_;
    StuckState state_;
    std::unique_ptr<TimerMM> chkTimer_;
};

}  // namespace quorrin
