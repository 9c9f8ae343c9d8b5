// The wheels' numbers, and how counts and metres belong together.
#pragma once

#include <cmath>
#include <cstddef>

#include "robot/geometry.h"

namespace quorrin {

constexpr double kWheelRadius_m = 0.075;
constexpr double kWheelBase_m = 0.227;
constexpr double kCountsPerTurn = 1200;
constexpr int kEncoderModulus = 32767;  // positions run from 0 to 32766
constexpr double kCountsPerMetre = kCountsPerTurn / (2.0 * kExactPi * kWheelRadius_m);

// The left drive is mounted mirrored: forward counts down there.
constexpr double mountingSign(std::size_t side) {
    return side == 0 ? -1.0 : 1.0;
}

// An unwrapped count as the encoder shows it.
inline int encoderReading(double counts) {
    const double wrapped = std::fmod(std::floor(counts), kEncoderModulus);
    return static_cast<int>(wrapped < 0 ? wrapped + kEncoderModulus : wrapped);
}

}  // namespace quorrin
