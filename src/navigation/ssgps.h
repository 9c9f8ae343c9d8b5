// The landmark task: replaces the pose by an absolute fix whenever one can be had.
//
// There is no filter: a fix overwrites the pose and odometry goes on from there. Geometry and tables are in
// landmarks.h. The main form builds no instance of it; whoever does supplies the landmark tables.
// The owner constructs it, sets the public fields, calls run once and task_end once.
#pragma once

#include <memory>
#include <string>

#include "base/checked_int.h"
#include "platform/timer_mm.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/landmark_values.h"
#include "session/record/navigation_controls.h"
#include "session/record/pose_values.h"
#include "session/record/sensor_values.h"

namespace quorrin {

class SSGPS {
  public:
    SSGPS(Clock& clock, PoseValues& pose, const SensorValues& sensors, LandmarkValues& landmarks,
          NavigationControls& controls, QuorrinSDK& myRobot);

    std::string Status;          // not written
    double tolerance = 0;        // not read
    float SonarGPSInterval = 0;  // period of EstTimer, ms
    bool enable = false;         // not read

    // Leaves its arguments alone and returns false: the pose is in the record.
    bool GetLatest(double& X, double& Y, double& z, double& Angel, Integer& CoordinateID);
    void Refresh() {}
    void run();
    void Kill() {}
    void continue_() {}
    void suspend() {}
    void task_end();
    void EstTimer_Timer(Long elaspTime);

  private:
    void tryFix();

    Clock& clock_;
    PoseValues& pose_;
    const SensorValues& sensors_;
    LandmarkValues& landmarks_;
    NavigationControls& controls_;
    QuorrinSDK& myRobot_;
    std::unique_ptr<TimerMM> EstTimer_;
};

}  // namespace quorrin
