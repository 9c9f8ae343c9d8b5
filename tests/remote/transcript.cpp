#include "remote/transcript.h"

#include <cctype>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace quorrin {

namespace {

[[noreturn]] void refuse(const std::string& line) {
    throw std::runtime_error("no line of a transcript: " + line);
}

// The first word, which is cut off.
std::string takeWord(std::string& rest) {
    const std::size_t blank = rest.find(' ');
    std::string word = rest.substr(0, blank);
    rest = blank == std::string::npos ? "" : rest.substr(blank + 1);
    return word;
}

// True when `rest` begins so, which is then cut off.
bool takeStart(std::string& rest, const std::string& start) {
    if (rest.rfind(start, 0) != 0) return false;
    rest.erase(0, start.size());
    return true;
}

TranscriptLine clientLine(std::string rest, TranscriptLine line) {
    static const std::map<std::string, Deed> deeds = {{" connects", Deed::connects},
                                                      {" is refused", Deed::isRefused},
                                                      {" hangs up", Deed::hangsUp},
                                                      {" resets", Deed::resets}};
    line.port = std::stoi(rest.substr(0, 4));
    rest.erase(0, 4);
    if (const auto found = deeds.find(rest); found != deeds.end()) {
        line.deed = found->second;
        return line;
    }
    line.deed = takeStart(rest, " in one read") ? Deed::sendsAtOnce : Deed::sends;
    if (!takeStart(rest, ": ")) refuse(line.text);
    line.bytes = transcriptBytes(rest);
    return line;
}

TranscriptLine stationLine(std::string rest, TranscriptLine line) {
    line.port = std::stoi(rest.substr(0, 4));
    rest.erase(0, 4);
    if (takeStart(rest, " to ")) {
        line.client = rest.at(0);
        rest.erase(0, 1);
    }
    if (rest == " closes") {
        line.deed = Deed::seesClose;
        return line;
    }
    line.deed = Deed::hears;
    if (!takeStart(rest, ": ")) refuse(line.text);
    line.bytes = transcriptBytes(rest);
    return line;
}

TranscriptLine lineOf(const std::string& text) {
    TranscriptLine line;
    line.text = text;
    std::string rest = text;
    const std::string who = takeWord(rest);
    if (who == "C" || who == "D") {
        line.client = who[0];
        return clientLine(rest, line);
    }
    if (who == "S") return stationLine(rest, line);
    line.value = rest;
    if (who == "robot") {
        line.deed = Deed::robot;
    } else if (who == "wait") {
        line.count = std::stoi(rest);
    } else if (who == "station" || who == "operator") {
        line.deed = who == "station" ? Deed::has : Deed::operatorSets;
        line.name = takeWord(rest);
        line.value = rest;
    } else if (rest.rfind("more connect ", 0) == 0) {
        line.deed = Deed::moreConnect;
        line.count = std::stoi(who);
        line.port = std::stoi(rest.substr(13));
    } else {
        refuse(text);
    }
    return line;
}

void take(std::vector<Transcript>& all, const std::string& text) {
    if (text.empty()) return;
    if (text.rfind("# ", 0) == 0) {
        all.emplace_back();
        all.back().title = text.substr(2);
        return;
    }
    if (all.empty()) refuse(text);
    if (text == "fresh") {
        all.back().fresh = true;
    } else if (text == "not live") {
        all.back().liveToo = false;
    } else {
        all.back().lines.push_back(lineOf(text));
    }
}

}  // namespace

std::string transcriptBytes(const std::string& text) {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            ++at;
        } else if (text[at] == '"') {
            const std::size_t end = text.find('"', at + 1);
            if (end == std::string::npos) refuse(text);
            const std::string word = text.substr(at + 1, end - at - 1);
            at = end + 1;
            std::size_t times = 1;
            if (at < text.size() && text[at] == '*') {
                std::size_t digits = 0;
                times = std::stoul(text.substr(at + 1), &digits);
                at += digits + 1;
            }
            while (times-- > 0) bytes += word;
        } else {
            std::size_t digits = 0;
            bytes.push_back(static_cast<char>(std::stoi(text.substr(at, 2), &digits, 16)));
            if (digits != 2) refuse(text);
            at += 2;
        }
    }
    return bytes;
}

std::vector<Transcript> transcriptsIn(std::istream& text) {
    std::vector<Transcript> all;
    for (std::string line; std::getline(text, line);) take(all, line);
    return all;
}

std::vector<Transcript> readTranscripts(const std::string& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error("cannot read " + path);
    if (path.rfind(".md") == std::string::npos) return transcriptsIn(file);
    std::stringstream blocks;
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("```", 0) == 0) {
            inside = line == "```transcript";
        } else if (inside) {
            blocks << line << '\n';
        }
    }
    return transcriptsIn(blocks);
}

}  // namespace quorrin
