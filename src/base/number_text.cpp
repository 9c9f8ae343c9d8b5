#include "base/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/program_error.h"
#include "base/rounding.h"

namespace quorrin {

namespace {

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

[[noreturn]] void throwNoNumber(std::string_view text) {
    throw ProgramError("\"" + std::string(text) + "\" is no number");
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') return std::nullopt;
    }
    if (text.empty() ||
        !(text.front() == '-' || text.front() == '.' || (text.front() >= '0' && text.front() <= '9')))
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::int64_t> parseWhole(std::string_view text) {
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') return std::nullopt;
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

double toDouble(std::string_view text) {
    const auto value = parseNumber(text);
    if (!value) throwNoNumber(text);
    return *value;
}

Integer wholeToInteger(std::string_view text) {
    const auto value = parseWhole(text);
    if (!value) throwNoNumber(text);
    return Integer(*value);
}

Integer numberToInteger(std::string_view text) {
    // The thresholds are read on every tick and are whole numbers; this spares the way over a decimal.
    if (const auto whole = parseWhole(text)) return Integer(*whole);
    return roundToInteger(toDouble(text));
}

Long numberToLong(std::string_view text) {
    return roundToLong(toDouble(text));
}

std::string formatFixed(double value, int decimals) {
    char text[400];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string formatShortest(double value) {
    if (value == 0) return "0";  // also the negative zero
    char text[40];
    const double size = std::fabs(value);
    // Left to itself the library writes 100000 as "1e+05", which is shorter.
    const bool plain = size >= 1e-5 && size < 1e15;
    const auto result = plain ? std::to_chars(text, text + sizeof text, value, std::chars_format::fixed)
                              : std::to_chars(text, text + sizeof text, value);
    return {text, result.ptr};
}

std::string booleanText(bool value) {
    return value ? "True" : "False";
}

}  // namespace quorrin
