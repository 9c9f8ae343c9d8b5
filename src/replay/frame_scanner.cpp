#include "replay/frame_scanner.h"

#include <cstring>

#include "replay/script_limits.h"

namespace quorrin {

namespace {

class Scanner {
  public:
    explicit Scanner(std::string_view text) : at_(text.data()), end_(text.data() + text.size()) {}

    bool take(char c) {
        skipBlanks();
        if (at_ == end_ || *at_ != c) return false;
        ++at_;
        return true;
    }

    // What stands between two quotes. An escape in it is not resolved: such a text is no name that is known,
    // and the whole line goes to the parser.
    bool text(std::string_view& out) {
        if (!take('"')) return false;
        const void* quote = std::memchr(at_, '"', static_cast<std::size_t>(end_ - at_));
        if (quote == nullptr) return false;
        const char* close = static_cast<const char*>(quote);
        out = std::string_view(at_, static_cast<std::size_t>(close - at_));
        at_ = close + 1;
        return true;
    }

    // A whole number of at most 15 digits.
    bool whole(std::int64_t& out) {
        skipBlanks();
        const bool negative = at_ != end_ && *at_ == '-';
        if (negative) ++at_;
        const char* start = at_;
        std::int64_t value = 0;
        while (at_ != end_ && *at_ >= '0' && *at_ <= '9' && at_ - start <= 15) {
            value = value * 10 + (*at_ - '0');
            ++at_;
        }
        const auto digits = at_ - start;
        if (digits == 0 || digits > 15 || (digits > 1 && *start == '0')) return false;
        if (at_ != end_ && (*at_ == '.' || *at_ == 'e' || *at_ == 'E')) return false;
        out = negative ? -value : value;
        return true;
    }

    bool integer(std::int16_t& out) {
        std::int64_t value = 0;
        if (!whole(value) || value < INT16_MIN || value > INT16_MAX) return false;
        out = static_cast<std::int16_t>(value);
        return true;
    }

    bool nothingLeft() {
        skipBlanks();
        return at_ == end_;
    }

  private:
    void skipBlanks() {
        while (at_ != end_ && (*at_ == ' ' || *at_ == '\t' || *at_ == '\r')) ++at_;
    }

    const char* at_;
    const char* end_;
};

bool scanSonar(Scanner& scanner, FrameLine& frame) {
    if (!scanner.take('[')) return false;
    for (std::size_t i = 0; i < frame.sonarCm.size(); ++i) {
        if (i > 0 && !scanner.take(',')) return false;
        if (!scanner.integer(frame.sonarCm[i])) return false;
    }
    return scanner.take(']');
}

}  // namespace

bool scanFrameLine(std::string_view text, ScriptLine& line) {
    Scanner scanner(text);
    std::string_view key;
    std::string_view name;
    if (!scanner.take('{') || !scanner.text(key) || key != "t" || !scanner.take(':')) return false;
    if (!scanner.whole(line.timeMs) || line.timeMs < 0 || line.timeMs > kLastTimeMs) return false;
    if (!scanner.take(',') || !scanner.text(key) || key != "frame" || !scanner.take(':')) return false;
    if (!scanner.text(name)) return false;

    FrameLine* frame = std::get_if<FrameLine>(&line.what);
    if (frame == nullptr) frame = &line.what.emplace<FrameLine>();
    frame->kind = findFrameKind(name);
    if (frame->kind < 0) return false;
    frame->named = 0;
    const LinkName link = frameKinds()[static_cast<std::size_t>(frame->kind)].link;

    int property = -1;
    while (scanner.take(',')) {
        if (!scanner.text(key) || !scanner.take(':')) return false;
        property = findFrameProperty(key, property + 1);
        if (property < 0 || frame->has(property)) return false;
        const FrameProperty& entry = frameProperties()[static_cast<std::size_t>(property)];
        if (entry.link != link) return false;
        std::int16_t value = 0;
        if (entry.value == nullptr ? !scanSonar(scanner, *frame) : !scanner.integer(value)) return false;
        frame->set(property, value);
    }
    return scanner.take('}') && scanner.nothingLeft();
}

}  // namespace quorrin
