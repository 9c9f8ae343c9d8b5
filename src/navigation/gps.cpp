#include "navigation/gps.h"

#include "base/rounding.h"
#include "navigation/task_timer.h"

namespace quorrin {

GPS::GPS(Clock& clock, PoseValues& pose, const SensorValues& sensors)
    : clock_(clock), pose_(pose), sensors_(sensors) {}

bool GPS::GetLatest(double&, double&, double&, double&, Integer&) {
    return false;
}

void GPS::run() {
    odometry_.firstSample = true;
    const Long interval = roundToLong(EstInterval);
    EstTimer_ = makeTaskTimer(clock_, {interval, 1, true, true, "GPS EstTimer_Timer"},
                              [this, interval] { EstTimer_Timer(interval); });
}

void GPS::task_end() {
    releaseTaskTimer(EstTimer_);
}

void GPS::EstTimer_Timer(Long /*elaspTime*/) {
    integrateOdometry(pose_, sensors_, odometry_);
}

}  // namespace quorrin
