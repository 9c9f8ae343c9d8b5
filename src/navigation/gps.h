// The odometry task: integrates the wheel encoders into the pose, every EstInterval milliseconds.
//
// Holds the timer and the previous samples; the arithmetic is in odometry.h. It never resets the pose except
// by the range rule there. The owner constructs it, sets the public fields, calls run once and task_end once.
// Catches nothing: a ProgramError of a tick is fatal.
#pragma once

#include <memory>
#include <string>

#include "base/checked_int.h"
#include "navigation/odometry.h"
#include "platform/timer_mm.h"

namespace quorrin {

class GPS {
  public:
    GPS(Clock& clock, PoseValues& pose, const SensorValues& sensors);

    float SonarGPSInterval = 0;  // not read
    float EstInterval = 50;      // period of EstTimer, ms
    double tolerance = 0;        // not read
    std::string Status;          // not written

    // Leaves its arguments alone and returns false: the pose is in the record.
    bool GetLatest(double& X, double& Y, double& z, double& Angel, Integer& CoordinateID);
    void Refresh() {}
    void run();
    void Kill() {}
    void continue_() {}
    void suspend() {}
    void task_end();
    void EstTimer_Timer(Long elaspTime);

    const OdometryState& odometry() const { return odometry_; }

  private:
    Clock& clock_;
    PoseValues& pose_;
    const SensorValues& sensors_;
    OdometryState odometry_;
    std::unique_ptr<TimerMM> EstTimer_;
};

}  // namespace quorrin
