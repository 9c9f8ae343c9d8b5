#include "console/plain_text.h"

#include "base/number_text.h"

namespace quorrin {

std::string leftTrimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first);
}

std::string trimmed(const std::string& text) {
    const auto last = text.find_last_not_of(' ');
    return last == std::string::npos ? std::string() : leftTrimmed(text.substr(0, last + 1));
}

std::string digitsOf(const std::string& text) {
    std::string digits;
    for (const char c : text)
        if (c >= '0' && c <= '9') digits += c;
    return digits;
}

double leadingNumber(const std::string& text) {
    const std::string start = leftTrimmed(text);
    const auto end = start.find_first_not_of("0123456789.");
    std::string number = start.substr(0, end);
    // A second dot ends the number.
    const auto dot = number.find('.');
    if (dot != std::string::npos) number = number.substr(0, number.find('.', dot + 1));
    return parseNumber(number).value_or(0);
}

}  // namespace quorrin
