#include "base/windows_text.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "base/json_text.h"

namespace quorrin {

namespace {

// What stands from 0x80 to 0x9F, where the alphabet leaves Latin-1. Five bytes have no character of their own
// and stand for the control character of the same number.
constexpr std::uint32_t kFrom80[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                       0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

std::uint32_t codePoint(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1) return first;
    // The first byte of a character of n bytes begins with n ones and a zero.
    std::uint32_t code = first & (0x7FU >> character.size());
    for (const char c : character.substr(1)) code = code << 6U | (static_cast<unsigned char>(c) & 0x3FU);
    return code;
}

char windowsCharacter(std::uint32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
    const auto* const found = std::find(std::begin(kFrom80), std::end(kFrom80), code);
    return found == std::end(kFrom80) ? '?' : static_cast<char>(0x80 + (found - std::begin(kFrom80)));
}

}  // namespace

std::string windowsText(std::string_view utf8) {
    std::string text;
    while (!utf8.empty()) {
        const std::size_t length = utf8CharacterLength(utf8);
        text += length == 0 ? '?' : windowsCharacter(codePoint(utf8.substr(0, length)));
        utf8.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

}  // namespace quorrin
