// The sensor map task: keeps the certainty grid and the two histograms that the navigator reads, every
// timeInterval milliseconds.
//
// Holds the timer and the countdown to the next fading pass; the stages are in sensor_rays.h,
// certainty_grid.h and polar_density.h. It reads pose and ranges and never writes them. Outside +-7.9 m
// nothing is updated and only the fading runs. Mode changes do not clear the grid; run does.
//
// Errors: a ProgramError inside the tick, markCell or clearRay ends that call only; what it did stands.
#pragma once

#include <memory>
#include <string>

#include "base/checked_int.h"
#include "platform/timer_mm.h"
#include "session/record/map_values.h"
#include "session/record/navigation_controls.h"
#include "session/record/pose_values.h"
#include "session/record/sensor_values.h"

namespace quorrin {

class SensorMapBuilder {
  public:
    SensorMapBuilder(Clock& clock, MapValues& map, const PoseValues& pose, const SensorValues& sensors,
                     const NavigationControls& controls);

    std::string Status;        // "go" after run
    float timeInterval = 100;  // period of RunTimer, ms

    void run();
    void Kill() {}
    void continue_() {}
    void suspend() {}
    void task_end();
    void RunTimer_Timer(Long lMilliseconds);
    // Cell numbers 1 to 160; true if done.
    bool markCell(Integer x, Integer y);
    void clearRay(Integer x0, Integer y0, Integer x1, Integer y1);
    bool inMapRange() const;

    // Ticks until the next fading pass.
    Integer decayCountdown() const { return decayCountdown_; }

  private:
    void tick();

    Clock& clock_;
    MapValues& map_;
    const PoseValues& pose_;
    const SensorValues& sensors_;
    const NavigationControls& controls_;
    Integer decayCountdown_;
    std::unique_ptr<TimerMM> RunTimer_;
};

}  // namespace quorrin
