// The drive command's rules once more, on cut texts with one-based places; slow and plain, for
// parseDriveCommand to be held against.
#pragma once

#include <array>
#include <string>

namespace quorrin::fuzz {

// In the order of the command's fields: avoidance is the seventh, the counter the eighth.
using DriveValues = std::array<int, 8>;

// An optional sign and digits, blanks around them, in 16 bits; else false, and `value` stays.
inline bool readNumber(const std::string& text, int& value) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return false;
    std::string word = text.substr(first, text.find_last_not_of(" \t") - first + 1);
    const bool minus = word[0] == '-';
    if (minus || word[0] == '+') word.erase(0, 1);
    if (word.empty() || word.find_first_not_of("0123456789") != std::string::npos) return false;
    int sum = 0;
    for (const char digit : word) {
        sum = sum * 10 + (digit - '0');
        if (sum > 32768) return false;
    }
    if (!minus && sum > 32767) return false;
    value = minus ? -sum : sum;
    return true;
}

inline void plainDrive(std::string text, DriveValues& values) {
    for (std::size_t field = 0; field < 7; ++field) {
        const std::size_t comma = text.find(',') + 1;
        if (comma > 0) readNumber(text.substr(0, comma - 1), values[field]);
        const std::size_t cut = std::to_string(values[field]).size() + 1;
        text = cut < text.size() ? text.substr(cut) : "";
    }
    readNumber(text, values[7]);
}

}  // namespace quorrin::fuzz
