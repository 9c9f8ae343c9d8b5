#include "platform/joystick_axis.h"

#include <cstdlib>

namespace quorrin {

namespace {

constexpr std::int64_t kWhole = 10000;  // dead zone and saturation of all the half way
// Twice the distance of an end from the middle, which is at -0.5: so all sums stay whole.
constexpr std::int64_t kHalfWay = 65535;

// To the nearest, upwards from the middle between two; neither is negative.
std::int64_t roundedQuotient(std::int64_t dividend, std::int64_t divisor) {
    return (2 * dividend + divisor) / (2 * divisor);
}

}  // namespace

int scaledAxis(std::int16_t raw, const AxisScale& scale) {
    const std::int64_t middle = (std::int64_t{scale.minimum} + scale.maximum) / 2;
    const std::int64_t deflection = 2 * std::int64_t{raw} + 1;
    const std::int64_t way = std::abs(deflection) * kWhole;
    const std::int64_t deadWay = scale.deadZone * kHalfWay;
    const std::int64_t fullWay = scale.saturation * kHalfWay;
    if (way <= deadWay) return static_cast<int>(middle);
    const std::int64_t end = deflection < 0 ? scale.minimum : scale.maximum;
    if (way >= fullWay) return static_cast<int>(end);
    const std::int64_t moved = roundedQuotient((way - deadWay) * std::abs(end - middle), fullWay - deadWay);
    return static_cast<int>(end < middle ? middle - moved : middle + moved);
}

int scaledSlider(std::int16_t raw, const AxisScale& scale) {
    constexpr std::int64_t kRawRange = 65535;
    const std::int64_t from = std::int64_t{raw} + 32768;
    const std::int64_t range = std::int64_t{scale.maximum} - scale.minimum;
    return static_cast<int>(scale.minimum + roundedQuotient(from * range, kRawRange));
}

}  // namespace quorrin
