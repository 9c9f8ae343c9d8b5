#include "tree/source_text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace quorrin::tree {

namespace fs = std::filesystem;

namespace {

const fs::path kRoot = QUORRIN_SOURCE_DIR;

bool leftOut(const std::string& name) {
    return startsWith(name, ".") || name == "build" || startsWith(name, "build-") || name == "__pycache__";
}

}  // namespace

bool startsWith(const std::string& text, const std::string& start) {
    return text.rfind(start, 0) == 0;
}

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::vector<std::string> projectFiles(const std::string& folder, const std::vector<std::string>& endings) {
    std::vector<std::string> found;
    if (!fs::exists(kRoot / folder)) return found;
    for (auto entry = fs::recursive_directory_iterator(kRoot / folder); entry != fs::end(entry); ++entry) {
        const std::string name = entry->path().filename().string();
        if (entry->is_directory()) {
            if (leftOut(name)) entry.disable_recursion_pending();
            continue;
        }
        if (leftOut(name)) continue;
        const bool wanted =
            endings.empty() ||
            std::any_of(endings.begin(), endings.end(), [&](const auto& end) { return endsWith(name, end); });
        if (wanted) found.push_back(fs::relative(entry->path(), kRoot).generic_string());
    }
    std::sort(found.begin(), found.end());
    return found;
}

std::string readText(const std::string& path) {
    std::ifstream file(kRoot / path, std::ios::binary);
    if (!file) throw std::runtime_error("cannot read " + path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string codeOnly(const std::string& text) {
    std::string code;
    std::size_t at = 0;
    const auto keepNewlines = [&](std::size_t end) {
        for (; at < end && at < text.size(); ++at) {
            if (text[at] == '\n') code += '\n';
        }
    };
    const auto isWordBefore = [&] {
        return !code.empty() && (std::isalnum(static_cast<unsigned char>(code.back())) != 0);
    };
    while (at < text.size()) {
        if (text.compare(at, 2, "//") == 0) {
            keepNewlines(std::min(text.find('\n', at), text.size()));
        } else if (text.compare(at, 2, "/*") == 0) {
            const std::size_t end = text.find("*/", at + 2);
            keepNewlines(end == std::string::npos ? text.size() : end + 2);
        } else if (text.compare(at, 2, "R\"") == 0 && !isWordBefore()) {
            const std::size_t open = text.find('(', at);
            const std::string close = ")" + text.substr(at + 2, open - at - 2) + "\"";
            const std::size_t end = text.find(close, open);
            code += "\"\"";
            keepNewlines(end == std::string::npos ? text.size() : end + close.size());
        } else if (text[at] == '"' || (text[at] == '\'' && !isWordBefore())) {  // 10'000 is no literal
            const char quote = text[at];
            std::size_t end = at + 1;
            while (end < text.size() && text[end] != quote && text[end] != '\n')
                end += text[end] == '\\' ? 2 : 1;
            code += quote;
            code += quote;
            at = std::min(text.size(), end);
            if (at < text.size() && text[at] == quote) ++at;
        } else {
            code += text[at++];
        }
    }
    return code;
}

std::vector<Include> includesOf(const std::string& text) {
    static const std::regex form(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> includes;
    int line = 0;
    for (const std::string& words : linesOf(text)) {
        ++line;
        std::smatch match;
        if (std::regex_search(words, match, form)) includes.push_back({match[2], match[1] == "<", line});
    }
    return includes;
}

std::vector<std::string> matchesOf(const std::string& text, const std::string& expression) {
    const std::regex wanted(expression);
    std::vector<std::string> matches;
    int number = 0;
    for (const std::string& line : linesOf(text)) {
        ++number;
        if (std::regex_search(line, wanted))
            matches.push_back("line " + std::to_string(number) + ": " + line);
    }
    return matches;
}

}  // namespace quorrin::tree
