// Numbers as text, in one fixed form: "." as decimal sign, no grouping, decimals rounded half to even on the
// decimal value that the double stands for.
//
// Reading allows blanks around the number. Errors of the to...() functions: ProgramError for a text that is
// no number, or a number that does not fit.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/checked_int.h"

namespace quorrin {

// A decimal number such as "10.4", "-3", "1e3"; empty for anything else.
std::optional<double> parseNumber(std::string_view text);
// An optional sign and digits only; empty for anything else, or when it does not fit 64 bits.
std::optional<std::int64_t> parseWhole(std::string_view text);

double toDouble(std::string_view text);
// A whole number as text ("5000"); a fraction is an error.
Integer wholeToInteger(std::string_view text);
// Any number, rounded half to even.
Integer numberToInteger(std::string_view text);
Long numberToLong(std::string_view text);

std::string formatFixed(double value, int decimals);
// The shortest text that reads back to the same double; whole values print without a point, and sizes from
// 1e-5 to below 1e15 without an exponent.
std::string formatShortest(double value);
// "True" or "False".
std::string booleanText(bool value);

}  // namespace quorrin
