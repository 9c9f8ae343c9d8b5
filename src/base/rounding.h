// From a double to a whole number: nearest value, ties to the even neighbour. The only way to do it here.
//
// Errors: ProgramError for NaN, infinities and values that do not fit the result.
#pragma once

#include <cmath>
#include <cstdint>

#include "base/checked_int.h"

namespace quorrin {

// The rounded value, still as a double (assumes the default rounding mode, which nothing here changes).
//
// Adding 1.5 * 2^52 leaves no bit for a fraction, so the sum itself is rounded half to even. That is exact
// below 2^51 and spares a library call, of which a sensor map's tick would make dozens.
inline double roundHalfEven(double value) {
    constexpr double kNoFraction = 6755399441055744.0;
    if (std::fabs(value) < 2251799813685248.0)
        return std::copysign((value + kNoFraction) - kNoFraction, value);
    return std::nearbyint(value);
}

inline Integer roundToInteger(double value) {
    const double rounded = roundHalfEven(value);
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) throwDoesNotFit("Integer", value);
    return Integer(static_cast<int>(rounded));
}

inline Long roundToLong(double value) {
    const double rounded = roundHalfEven(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0)) throwDoesNotFit("Long", value);
    return Long(static_cast<std::int64_t>(rounded));
}

}  // namespace quorrin
