#include "base/profile_text.h"

#include <algorithm>
#include <cstddef>

namespace quorrin {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kNone = std::string_view::npos;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    a = trimmed(a);
    b = trimmed(b);
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

// Walks through the lines. `line` has no line end; `end` stands behind the line end.
class Lines {
  public:
    explicit Lines(std::string_view text) : text_(text) {
        if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) end = kByteOrderMark.size();
    }
    bool next() {
        if (end >= text_.size()) return false;
        const std::size_t start = end;
        const std::size_t stop = std::min(text_.find_first_of("\r\n", start), text_.size());
        line = text_.substr(start, stop - start);
        lineEnd = stop;
        end = stop;
        if (end < text_.size()) end += text_.substr(end, 2) == "\r\n" ? 2 : 1;
        return true;
    }

    std::string_view line;
    std::size_t lineEnd = 0;
    std::size_t end = 0;

  private:
    std::string_view text_;
};

// The name in a "[name]" line; empty optional for any other line.
std::optional<std::string_view> sectionName(std::string_view line) {
    line = trimmed(line);
    if (line.empty() || line.front() != '[') return std::nullopt;
    const std::size_t close = line.find(']');
    if (close == kNone) return std::nullopt;
    return line.substr(1, close - 1);
}

bool isKeyLine(std::string_view line, std::string_view key) {
    const std::string_view content = trimmed(line);
    if (content.empty() || content.front() == ';') return false;
    const std::size_t equals = content.find('=');
    return equals != kNone && sameName(content.substr(0, equals), key);
}

std::string_view valueIn(std::string_view line) {
    return trimmed(line.substr(line.find('=') + 1));
}

std::string_view withoutQuotes(std::string_view value) {
    if (value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\''))
        return value.substr(1, value.size() - 2);
    return value;
}

// Where a key stands, or where it would be put.
struct Place {
    bool inSection = false;                // the section exists
    std::optional<std::string_view> line;  // the key's line
    std::size_t insertAt = 0;              // behind the line end of the section's last filled line
};

Place findPlace(std::string_view text, std::string_view section, std::string_view key) {
    Place place;
    Lines lines(text);
    while (lines.next()) {
        if (const auto name = sectionName(lines.line)) {
            if (place.inSection) return place;
            if (!sameName(*name, section)) continue;
            place.inSection = true;
            place.insertAt = lines.end;
        } else if (place.inSection) {
            if (isKeyLine(lines.line, key)) {
                place.line = lines.line;
                return place;
            }
            if (!trimmed(lines.line).empty()) place.insertAt = lines.end;
        }
    }
    return place;
}

std::string lineEndOf(std::string_view text) {
    Lines lines(text);
    if (!lines.next() || lines.end == lines.lineEnd) return "\n";
    return std::string(text.substr(lines.lineEnd, lines.end - lines.lineEnd));
}

}  // namespace

std::optional<std::string> profileValue(std::string_view text, std::string_view section,
                                        std::string_view key) {
    const Place place = findPlace(text, section, key);
    if (!place.line) return std::nullopt;
    return std::string(withoutQuotes(valueIn(*place.line)));
}

std::string withProfileValue(std::string_view text, std::string_view section, std::string_view key,
                             std::string_view value) {
    const Place place = findPlace(text, section, key);
    std::string result(text);
    if (place.line) {
        const std::string_view old = valueIn(*place.line);
        const auto at = static_cast<std::size_t>(old.data() - text.data());
        return result.replace(at, old.size(), value);
    }
    const std::string lineEnd = lineEndOf(text);
    const std::size_t at = place.inSection ? place.insertAt : text.size();
    std::string added;
    if (at > 0 && text[at - 1] != '\n' && text[at - 1] != '\r' && text.substr(0, at) != kByteOrderMark)
        added += lineEnd;
    if (!place.inSection) added.append("[").append(section).append("]").append(lineEnd);
    added.append(key).append("=").append(value).append(lineEnd);
    return result.insert(at, added);
}

}  // namespace quorrin
