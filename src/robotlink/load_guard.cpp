#include "robotlink/load_guard.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr double kNominalCurrent_A = 0.6;
constexpr double kHotAbove = 90;
constexpr double kCoolBelow = 25;

void showHeat(Shape& lamp, double heat) {
    if (heat > kHotAbove) lamp.setFill(GeneralConstants::kRed);
    if (heat < kCoolBelow) lamp.setFill(GeneralConstants::kGreen);
}

}  // namespace

double nextMotorHeat(double heat, double current_A) {
    if (current_A > kNominalCurrent_A) return heat + (current_A - kNominalCurrent_A) * 3;
    return std::max(0.0, heat - (kNominalCurrent_A - current_A) * 0.5);
}

void guardDriveLoad(SensorValues& sensors, LampControls& lamps, QuorrinSDK& myRobot) {
    sensors.motorHeatLeft = nextMotorHeat(sensors.motorHeatLeft, sensors.motorCurrentLeft);
    sensors.motorHeatRight = nextMotorHeat(sensors.motorHeatRight, sensors.motorCurrentRight);

    if (sensors.motorHeatLeft > kHotAbove || sensors.motorHeatRight > kHotAbove) {
        sensors.motionInhibit = true;
        stopDrives(myRobot);
    } else if (sensors.motorHeatLeft < kCoolBelow && sensors.motorHeatRight < kCoolBelow) {
        sensors.motionInhibit = false;
    }
    showHeat(lamps.shpBatteryStatus(5), sensors.motorHeatLeft);
    showHeat(lamps.shpBatteryStatus(6), sensors.motorHeatRight);
}

}  // namespace quorrin
