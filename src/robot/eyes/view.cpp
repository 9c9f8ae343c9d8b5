#include "robot/eyes/view.h"

#include <algorithm>

namespace quorrin {

namespace {

enum Channel : std::uint8_t { kHeadUpDown = 0, kHeadLeftRight = 1, kEyesUpDown = 4, kEyesLeftRight = 5 };

// Where this robot's head and eyes look straight ahead: the neutrals that a station is shipped with.
constexpr double kHeadLevel = 3600;
constexpr double kHeadAhead = 3650;
constexpr double kEyesLevel = 3500;
constexpr double kEyesAhead = 3200;

constexpr double kHeadPerUnit = 0.05 * kExactPi / 180.0;
constexpr double kEyesPerUnit = 0.03 * kExactPi / 180.0;
constexpr double kSteepest = 80.0 * kExactPi / 180.0;

}  // namespace

Vec2 gaze(const Servos& servos) {
    // More units turn to the right, and the eyes up; the head's up/down servo is mounted the other way round.
    const double right = (servos.position(kHeadLeftRight) - kHeadAhead) * kHeadPerUnit +
                         (servos.position(kEyesLeftRight) - kEyesAhead) * kEyesPerUnit;
    const double up = (kHeadLevel - servos.position(kHeadUpDown)) * kHeadPerUnit +
                      (servos.position(kEyesUpDown) - kEyesLevel) * kEyesPerUnit;
    return {-right, std::clamp(up, -kSteepest, kSteepest)};
}

}  // namespace quorrin
