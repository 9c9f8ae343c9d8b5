// Where the range sensors sit on this robot: metres from its centre, radians from its front.
#pragma once

#include "session/record/sensor_values.h"

namespace quorrin {

void fillSensorTables(SensorValues& sensors);

}  // namespace quorrin
