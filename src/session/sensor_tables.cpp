#include "session/sensor_tables.h"

#include "session/record/general_constants.h"

namespace quorrin {

void fillSensorTables(SensorValues& sensors) {
    using namespace GeneralConstants;
    const auto radians = [](double degrees) { return degrees / 180 * kPi; };

    sensors.irRadius = {0.18, 0.18, 0.18, 0.18, 0.12, 0.18, 0.12, 0, 0, 0};
    sensors.irAngle = {radians(30), radians(15), radians(-15), radians(-30), radians(-90),
                       -kHalfPi,    radians(90), radians(0),   radians(25),  radians(-25)};

    // Elements 4 and 5 have a bearing and no sensor.
    sensors.sonarRadius[0] = 0.195;
    sensors.sonarRadius[1] = 0.195;
    sensors.sonarRadius[2] = 0.195;
    sensors.sonarRadius[3] = 0.17;
    sensors.sonarAngle = {kQuarterPi, 0, -kQuarterPi, kPi, 1.0, 1.0};
}

}  // namespace quorrin
