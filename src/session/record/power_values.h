// Power byte, batteries, charger. Voltages in volts; temperatures are raw readings (800 and above: cool).
#pragma once

#include "base/checked_int.h"

namespace quorrin {

struct PowerValues {
    Byte powerByte;  // image of the robot's power control byte
    double refVolts = 0;
    double battery1Volts = 0;
    double battery2Volts = 0;
    double dcInVolts = 0;
    double battery1Temp = 0;
    double battery2Temp = 0;
    Integer chargerStatus;       // low byte of the charger's status
    Integer chargerFlags;        // low byte of the charger's flags
    bool chargeFlash = false;    // indicator 3 blinks
    bool battery1Flash = false;  // indicator 0 blinks
    bool battery2Flash = false;  // indicator 1 blinks
    double noPowerVolts = 0;
};

}  // namespace quorrin
