#include "client/spoken_text.h"

#include <array>
#include <cstdint>

namespace quorrin {

namespace {

// What stands at 0x80 to 0x9F; 0 for nothing.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::optional<char> byteFor(std::uint32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
    for (std::size_t i = 0; i < kUpperControls.size(); ++i) {
        if (kUpperControls[i] != 0 && kUpperControls[i] == character) return static_cast<char>(0x80 + i);
    }
    return std::nullopt;
}

// The character at the front of the text, cut off it; empty where that is no UTF-8. None of four bytes is in
// Windows-1252, so these are not looked at.
std::optional<std::uint32_t> takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text[0]);
    std::size_t more = 0;
    std::uint32_t character = first;
    if (first >= 0xC2 && first <= 0xDF) {
        more = 1;
        character = first & 0x1FU;
    } else if (first >= 0xE0 && first <= 0xEF) {
        more = 2;
        character = first & 0x0FU;
    } else if (first >= 0x80) {
        return std::nullopt;
    }
    if (text.size() <= more) return std::nullopt;
    for (std::size_t i = 1; i <= more; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) return std::nullopt;
        character = character << 6U | (next & 0x3FU);
    }
    text.remove_prefix(more + 1);
    if (more == 2 && character < 0x800) return std::nullopt;
    return character;
}

}  // namespace

std::optional<std::string> spokenBytes(std::string_view utf8) {
    std::string bytes;
    while (!utf8.empty()) {
        const auto character = takeCharacter(utf8);
        const auto byte = character ? byteFor(*character) : std::nullopt;
        if (!byte) return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

}  // namespace quorrin
