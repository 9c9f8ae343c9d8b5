// Floating-point arithmetic whose faults are errors: overflow, division by zero and invalid operations throw
// ProgramError where they happen instead of running on as infinities or NaNs.
//
// Not for every sum: use it where the operands can leave the range that makes the result ordinary.
#pragma once

#include <cmath>

namespace quorrin {

[[noreturn]] void throwFloatingFault(const char* where);

// `value` itself when it is an ordinary number.
inline double finite(double value, const char* where) {
    if (!std::isfinite(value)) throwFloatingFault(where);
    return value;
}

// numerator / denominator; a zero denominator, 0/0 and an overflow are errors.
inline double quotient(double numerator, double denominator, const char* where) {
    if (denominator == 0) throwFloatingFault(where);
    return finite(numerator / denominator, where);
}

// The square root; a negative operand is an error.
inline double squareRoot(double value, const char* where) {
    if (!(value >= 0)) throwFloatingFault(where);
    return finite(std::sqrt(value), where);
}

// -1, 0 or 1.
inline double signOf(double value) {
    return value > 0 ? 1.0 : value < 0 ? -1.0 : 0.0;
}

}  // namespace quorrin
