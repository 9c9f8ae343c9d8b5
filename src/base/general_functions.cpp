#include "base/general_functions.h"

#include <cstddef>

#include "base/profile_text.h"

namespace quorrin {

namespace {

constexpr std::size_t kLongestValue = 128;  // characters

// The first `count` characters of UTF-8 text: bytes that continue a character are not counted.
std::string firstCharacters(const std::string& text, std::size_t count) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool continues = (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U;
        if (!continues && ++characters > count) return text.substr(0, i);
    }
    return text;
}

std::string untilNul(const std::string& text) {
    return text.substr(0, text.find('\0'));
}

std::string withoutBlanksAround(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool hasLineBreak(const std::string& text) {
    return text.find_first_of("\r\n") != std::string::npos;
}

}  // namespace

std::string ReadIni(const std::string& section, const std::string& key, const std::string& file,
                    Files& files) {
    const auto text = files.read(file);
    if (!text) return {};
    const auto value = profileValue(*text, section, key);
    if (!value) return {};
    return withoutBlanksAround(untilNul(firstCharacters(*value, kLongestValue)));
}

bool WriteIni(const std::string& section, const std::string& key, const std::string& value,
              const std::string& file, Files& files) {
    const std::string written = untilNul(value);
    if (section.empty() || key.empty()) return false;
    if (hasLineBreak(section) || hasLineBreak(key) || hasLineBreak(written)) return false;
    const auto text = files.read(file);
    if (!text && files.fileExists(file)) return false;
    return files.writeWhole(file, withProfileValue(text.value_or(""), section, key, written));
}

}  // namespace quorrin
