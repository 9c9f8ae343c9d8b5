// The drive load guard: how long has each drive carried more than 0.6 A?
//
// Run once per MotorFrame. Heat is a running estimate without a unit: above 0.6 A it grows by three times the
// excess, at or below it falls by half the margin, never below 0.
//   either heat above 90  -> motionInhibit, and both drives are stopped (again at each such frame)
//   both heats below 25   -> motionInhibit ends
//   between               -> the flag keeps its value
// Lamps 5 (left) and 6 (right): red above 90, green below 25, unchanged between.
#pragma once

#include "robotlink/quorrin_sdk.h"
#include "session/record/lamp_controls.h"
#include "session/record/sensor_values.h"

namespace quorrin {

// The heat one frame later, at a current in amperes.
double nextMotorHeat(double heat, double current_A);

void guardDriveLoad(SensorValues& sensors, LampControls& lamps, QuorrinSDK& myRobot);

}  // namespace quorrin
