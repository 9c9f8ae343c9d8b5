// The nearest thing ahead, to the left, to the right, as the ranges tell it.
//
// Metres from the robot's centre. The infrareds that look where the head looks, and the sonar places without
// a sensor, do not count. Ahead is 0.6 rad to each side of the front; a side goes from there back to 2.4 rad.
// No state; nothing when no range there was ever measured.
#pragma once

#include <cstdint>
#include <optional>

#include "session/record/sensor_values.h"

namespace quorrin {

enum class RangeSide : std::uint8_t { front, left, right };

std::optional<double> nearestRange(const SensorValues& sensors, RangeSide side);

}  // namespace quorrin
