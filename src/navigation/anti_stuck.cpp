#include "navigation/anti_stuck.h"

#include "base/rounding.h"
#include "navigation/drive_command.h"
#include "navigation/task_timer.h"

namespace quorrin {

AntiStuck::AntiStuck(Clock& clock, DriveValues& drive, const SensorValues& sensors, QuorrinSDK& myRobot)
    : clock_(clock), drive_(drive), sensors_(sensors), myRobot_(myRobot) {}

void AntiStuck::run() {
    const Long interval(timeInterval);
    chkTimer_ = makeTaskTimer(clock_, {interval, 10, true, true, "AntiStuck chkTimer_Timer"},
                              [this, interval] { chkTimer_Timer(interval); });
}

void AntiStuck::task_end() {
    releaseTaskTimer(chkTimer_);
}

void AntiStuck::chkTimer_Timer(Long /*lMilliseconds*/) {
    if (!drive_.antiStuckEnabled) {
        drive_.inStuck = false;
        drive_.stuckLeft = false;
        drive_.stuckRight = false;
        return;
    }
    if (!detectStuck(drive_, sensors_, state_)) return;
    if (sensors_.motionInhibit) return;
    myRobot_.SetDriveVelocities(
        bothDrives(roundToInteger(-drive_.wheelCmdLeft), roundToInteger(-drive_.wheelCmdRight)));
}

}  // namespace quorrin
