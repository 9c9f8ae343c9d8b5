#include "base/json_text.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace quorrin {

namespace {

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

void appendControlCharacter(std::string& out, char c) {
    switch (c) {
        case '\b':
            out += "\\b";
            return;
        case '\t':
            out += "\\t";
            return;
        case '\n':
            out += "\\n";
            return;
        case '\f':
            out += "\\f";
            return;
        case '\r':
            out += "\\r";
            return;
        default:
            break;
    }
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(c)));
    out += escaped;
}

}  // namespace

void appendWhole(std::string& out, std::int64_t value) {
    char text[24];
    const auto result = std::to_chars(text, text + sizeof text, value);
    out.append(text, result.ptr);
}

void appendDouble(std::string& out, double value) {
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    char text[40];
    const auto result = std::to_chars(text, text + sizeof text, value);
    out.append(text, result.ptr);
}

void appendBoolean(std::string& out, bool value) {
    out += value ? "true" : "false";
}

std::size_t utf8CharacterLength(std::string_view text) {
    if (text.empty()) return 0;
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) return 1;
    const auto second = text.size() > 1 ? static_cast<unsigned char>(text[1]) : 0U;
    std::size_t length = 0;
    if (first >= 0xC2 && first <= 0xDF) length = 2;
    if (first >= 0xE0 && first <= 0xEF) length = 3;
    if (first >= 0xF0 && first <= 0xF4) length = 4;
    if (length == 0 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!isContinuation(text[i])) return 0;
    }
    // Longer than needed, half of a pair, or beyond the last code point.
    if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F)) return 0;
    if ((first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F)) return 0;
    return length;
}

void appendText(std::string& out, std::string_view text) {
    const auto plain = [](char c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; };
    out += '"';
    while (!text.empty()) {
        // Nearly all texts are one run of plain characters.
        std::size_t length = 0;
        while (length < text.size() && plain(text[length])) ++length;
        out.append(text.data(), length);
        text.remove_prefix(length);
        if (text.empty()) break;

        const char c = text.front();
        length = utf8CharacterLength(text);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            appendControlCharacter(out, c);
        } else if (length == 0) {
            out += "\xEF\xBF\xBD";
            length = 1;
        } else {
            out.append(text.data(), length);
        }
        text.remove_prefix(length);
    }
    out += '"';
}

void appendHex(std::string& out, std::string_view bytes) {
    constexpr const char* digits = "0123456789abcdef";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        out += digits[byte >> 4U];
        out += digits[byte & 15U];
    }
}

}  // namespace quorrin
