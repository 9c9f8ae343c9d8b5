#include "navigation/sensor_map_builder.h"

#include "base/program_error.h"
#include "base/rounding.h"
#include "navigation/certainty_grid.h"
#include "navigation/polar_density.h"
#include "navigation/sensor_rays.h"
#include "navigation/task_timer.h"

namespace quorrin {

namespace {

constexpr int kTicksBetweenFades = 15;
constexpr double kLowLimit_m = -7.9;
constexpr double kHighLimit_m = 8.0;

bool inside(double coordinate_m) {
    return kLowLimit_m < coordinate_m && coordinate_m < kHighLimit_m;
}

}  // namespace

SensorMapBuilder::SensorMapBuilder(Clock& clock, MapValues& map, const PoseValues& pose,
                                   const SensorValues& sensors, const NavigationControls& controls)
    : clock_(clock), map_(map), pose_(pose), sensors_(sensors), controls_(controls) {}

void SensorMapBuilder::run() {
    const Long interval = roundToLong(timeInterval);
    RunTimer_ = makeTaskTimer(clock_, {interval, 10, true, true, "SensorMapBuilder RunTimer_Timer"},
                              [this, interval] { RunTimer_Timer(interval); });
    Status = "go";
    clearGrid(map_);
    decayCountdown_ = kTicksBetweenFades;
}

void SensorMapBuilder::task_end() {
    releaseTaskTimer(RunTimer_);
}

void SensorMapBuilder::RunTimer_Timer(Long /*lMilliseconds*/) {
    try {
        tick();
    } catch (const ProgramError&) {
        // ends this tick only
    }
}

void SensorMapBuilder::tick() {
    if (inMapRange()) {
        const Integer x = cellOf(pose_.robotX);
        const Integer y = cellOf(pose_.robotY);
        castRanges(map_, pose_, sensors_, x, y);
        buildPolarHistogram(map_, x, y);
        smoothPolarHistogram(map_);
        thresholdHistogram(map_, controls_.densityThreshold());
    }
    if (decayCountdown_ == 0) {
        fadeGrid(map_);
        decayCountdown_ = kTicksBetweenFades;
    } else {
        --decayCountdown_;
    }
}

bool SensorMapBuilder::markCell(Integer x, Integer y) {
    return quorrin::markCell(map_, x, y);
}

void SensorMapBuilder::clearRay(Integer x0, Integer y0, Integer x1, Integer y1) {
    quorrin::clearRay(map_, x0, y0, x1, y1);
}

bool SensorMapBuilder::inMapRange() const {
    return inside(pose_.robotX) && inside(pose_.robotY);
}

}  // namespace quorrin
