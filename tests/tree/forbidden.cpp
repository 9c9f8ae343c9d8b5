#include "tree/forbidden.h"

#include <nlohmann/json.hpp>
#include <regex>

#include "tree/source_text.h"

namespace quorrin::tree {

namespace {

const std::string kHostHeaders =
    R"(#\s*include\s*<(chrono|thread|mutex|shared_mutex|future|condition_variable|filesystem|stop_token|ctime)"
    R"(|unistd\.h|poll\.h|signal\.h|csignal|fcntl\.h|time\.h|pthread\.h|sys/[a-z_]+\.h|netinet/.*|arpa/.*|netdb\.h)>)";
const std::string kHostWords =
    R"(\b(std::(chrono|j?thread|mutex|async|filesystem|this_thread)|sleep_for|sleep_until|usleep|nanosleep)"
    R"(|clock_gettime|gettimeofday|localtime(_r)?|gmtime(_r)?|(steady|system|high_resolution)_clock)"
    R"(|QThread|QElapsedTimer|QTcpSocket|QTcpServer|QUdpSocket|QLocalSocket|QLocalServer|QProcess|QDateTime|QFile)\b)"
    R"(|\b(sleep|fork|pthread_create|setsockopt)\s*\(|(^|[^A-Za-z0-9_>])::(socket|connect|bind|listen|time|open|poll)\s*\()";
const std::string kQtTimers = R"(\b(QTimer|QBasicTimer|startTimer)\b)";

std::vector<std::string> hostCallsBut(const std::string& source, const std::string& words) {
    const std::string code = codeOnly(source);
    auto found = matchesOf(code, kHostHeaders);
    const auto more = matchesOf(code, words);
    found.insert(found.end(), more.begin(), more.end());
    return found;
}

}  // namespace

std::vector<std::string> hostCalls(const std::string& source) {
    return hostCallsBut(source, kHostWords + "|" + kQtTimers);
}

std::vector<std::string> hostCallsOfAWindow(const std::string& source) {
    return hostCallsBut(source, kHostWords);
}

std::vector<std::string> qtIncludes(const std::string& source) {
    return matchesOf(source, R"(^\s*#\s*include\s*[<"](Q[A-Z]|Qt[A-Z][A-Za-z]*/))");
}

std::vector<std::string> leftOvers(const std::string& text) {
    // Put together from pieces, so that this file does not contain what it looks for.
    static const std::string words = std::string(R"(\b(TO)") + "DO|FIX" + "ME|X" + "XX)\\b|\\bDIS" +
                                     "ABLED_|GTEST_" + "SKIP|\\bHA" + "CK\\b";
    return matchesOf(text, words);
}

bool beginsWithComment(const std::string& header) {
    for (const std::string& line : linesOf(header)) {
        if (line.empty() || line == "#pragma once") continue;
        return startsWith(line, "//") || startsWith(line, "/*");
    }
    return false;
}

std::string jsonFault(const std::string& text) {
    try {
        const auto parsed = nlohmann::json::parse(text);
        return parsed.is_discarded() ? "discarded" : "";
    } catch (const nlohmann::json::exception& error) {
        return error.what();
    }
}

std::string jsonLinesFault(const std::string& text) {
    int number = 0;
    for (const std::string& line : linesOf(text)) {
        ++number;
        if (line.find_first_not_of(" \t\r") == std::string::npos || line[0] == '#') continue;
        const std::string fault = jsonFault(line);
        if (!fault.empty()) return "line " + std::to_string(number) + ": " + fault;
    }
    return "";
}

std::vector<std::string> localLinks(const std::string& markdown) {
    static const std::regex link(R"(\]\(\s*<?([^)\s>]+)>?[^)]*\))");
    std::vector<std::string> targets;
    for (std::sregex_iterator at(markdown.begin(), markdown.end(), link), end; at != end; ++at) {
        std::string target = (*at)[1];
        if (target.find("://") != std::string::npos || startsWith(target, "mailto:")) continue;
        target = target.substr(0, target.find('#'));
        if (!target.empty()) targets.push_back(target);
    }
    return targets;
}

}  // namespace quorrin::tree
