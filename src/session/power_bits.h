// Bits of the robot's power control byte that the session switches, and the byte's way to the robot.
#pragma once

#include "base/controls.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/power_values.h"

namespace quorrin {

constexpr int kPowerAtStart = 63;
constexpr int kPowerSubsystemsAndMotion = 7;  // bits 0 to 2
constexpr int kPowerMotion = 4;               // bit 2

inline void setPowerBits(PowerValues& power, int bits) {
    power.powerByte = power.powerByte.value() | bits;
}
inline void clearPowerBits(PowerValues& power, int bits) {
    power.powerByte = power.powerByte.value() & (255 - bits);
}

// Sends the byte if it differs from the number in lblTest, which holds what was sent last.
void flushPowerByte(const PowerValues& power, Label& lblTest, QuorrinSDK& robotTI);

}  // namespace quorrin
