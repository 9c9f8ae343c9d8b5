#include "client/script.h"

#include <charconv>
#include <stdexcept>

#include "client/printable_text.h"
#include "client/spoken_text.h"

namespace quorrin {

namespace {

constexpr std::int64_t kLongestMs = 60 * 60 * 1000;
// Reading an expression goes as deep as it has brackets.
constexpr std::size_t kLongestExpression = 500;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// Time that grows with the square of the text, whatever the expression: one that goes through all ways to
// match would hold up the commands meanwhile. The price are references back.
#ifdef __GLIBCXX__
constexpr auto kExpressionKind = std::regex::ECMAScript | std::regex_constants::__polynomial;
#else
constexpr auto kExpressionKind = std::regex::ECMAScript;
#endif
constexpr const char* kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t from = text.find_first_not_of(kBlanks);
    if (from == std::string_view::npos) return {};
    return text.substr(from, text.find_last_not_of(kBlanks) - from + 1);
}

// The last word, cut off the text.
std::string_view takeLastWord(std::string_view& text) {
    const std::size_t before = text.find_last_of(kBlanks);
    const std::string_view word = before == std::string_view::npos ? text : text.substr(before + 1);
    text = trimmed(text.substr(0, text.size() - word.size()));
    return word;
}

// The first word, cut off the text.
std::string_view takeWord(std::string_view& text) {
    text = trimmed(text);
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    text.remove_prefix(word.size());
    text = trimmed(text);
    return word;
}

std::string quoted(std::string_view text) {
    return "\"" + printableText(text) + "\"";
}

std::int64_t number(std::string_view text, std::int64_t lowest, std::int64_t highest) {
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || value < lowest || value > highest)
        throw std::invalid_argument(quoted(text) + " is no whole number from " + std::to_string(lowest) +
                                    " to " + std::to_string(highest));
    return value;
}

void nothingMore(std::string_view rest) {
    if (!rest.empty()) throw std::invalid_argument("what is " + quoted(rest) + "?");
}

step::HangUp hangUp(std::string_view rest) {
    if (rest.empty()) return {};
    const auto channel = channelNamed(rest);
    if (!channel)
        throw std::invalid_argument("no channel " + quoted(rest) +
                                    "; there are command, sensor, video, audio, voice, speech");
    return {channel};
}

step::Drive drive(std::string_view rest) {
    DriveFields fields;
    for (int* field : {&fields.steering, &fields.gas, &fields.brake, &fields.headUpDown,
                       &fields.headLeftRight, &fields.mouth, &fields.avoidance}) {
        if (rest.empty()) throw std::invalid_argument("drive needs seven numbers");
        *field = static_cast<int>(number(takeWord(rest), INT16_MIN, INT16_MAX));
    }
    nothingMore(rest);
    return {fields};
}

step::Ping ping(std::string_view rest) {
    if (rest != "on" && rest != "off") throw std::invalid_argument("ping needs on or off");
    return {rest == "on"};
}

step::Expect expect(std::string_view rest) {
    const bool ofReports = takeWord(rest) == "report";
    const std::string_view ms = takeLastWord(rest);
    if (!ofReports || takeLastWord(rest) != "within" || rest.empty())
        throw std::invalid_argument("it is: expect report REGEX within MS");
    if (rest.size() > kLongestExpression)
        throw std::invalid_argument("the expression is longer than " + std::to_string(kLongestExpression) +
                                    " characters");
    try {
        return {std::regex(rest.begin(), rest.end(), kExpressionKind), number(ms, 0, kLongestMs)};
    } catch (const std::regex_error&) {
        throw std::invalid_argument(quoted(rest) + " is no regular expression");
    }
}

step::Say say(std::string_view rest) {
    if (rest.empty()) throw std::invalid_argument("say needs a text");
    const auto bytes = spokenBytes(rest);
    if (!bytes) throw std::invalid_argument("the text has a character that Windows-1252 has not");
    return {*bytes};
}

RemoteStep::What parseLine(std::string_view line) {
    std::string_view rest = line;
    const std::string_view verb = takeWord(rest);
    if (verb == "hangup") return hangUp(rest);
    if (verb == "drive") return drive(rest);
    if (verb == "ping") return ping(rest);
    if (verb == "wait") return step::Wait{number(rest, 0, kLongestMs)};
    if (verb == "expect") return expect(rest);
    if (verb == "say") return say(rest);
    RemoteStep::What what;
    if (verb == "connect") {
        what = step::Connect{};
    } else if (verb == "mode") {
        what = step::Mode{};
    } else if (verb == "clos") {
        what = step::Clos{};
    } else if (verb == "quit") {
        what = step::Quit{};
    } else {
        throw std::invalid_argument("no verb " + quoted(verb));
    }
    nothingMore(rest);
    return what;
}

}  // namespace

RemoteScript parseRemoteScript(std::string_view text) {
    RemoteScript script;
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) text.remove_prefix(kByteOrderMark.size());
    for (int line = 1; !text.empty(); ++line) {
        const std::size_t end = text.find('\n');
        const std::string_view content = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (content.empty() || content[0] == '#') continue;
        try {
            script.steps.push_back({line, std::string(content), parseLine(content)});
        } catch (const std::invalid_argument& fault) {
            script.error = "line " + std::to_string(line) + ": " + fault.what();
            script.steps.clear();
            return script;
        }
    }
    return script;
}

}  // namespace quorrin
