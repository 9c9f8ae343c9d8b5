#include "tree/layers.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace quorrin::tree {

namespace {

// Low to high. "platform" is the ports only; the siblings have rooms of their own.
const std::array<std::string, 12> kOrder = {"platform",        "base",      "wire",       "session/record",
                                            "navigation/math", "robotlink", "navigation", "sound",
                                            "imaging",         "remote",    "console",    "session"};

// What the rooms beside the order may include besides themselves.
const std::map<std::string, std::set<std::string>> kBeside = {
    {"platform/host", {"platform", "base"}},
    {"platform/virtual", {"platform", "base"}},
    {"platform/qt", {"platform", "base", "platform/host"}},
    {"gateway", {"platform", "base", "wire"}},
    {"robot", {"platform", "base", "wire"}},
    {"client", {"platform", "base", "wire"}},
    {"client/window", {"platform", "base", "client", "desktop/theme", "desktop/tiles"}},
    {"desktop/theme", {"platform", "base"}},
    {"desktop/tiles", {"platform", "base", "desktop/theme"}},
};

int rankOf(const std::string& room) {
    const auto place = std::find(kOrder.begin(), kOrder.end(), room);
    return place == kOrder.end() ? -1 : static_cast<int>(place - kOrder.begin());
}

}  // namespace

std::string roomOf(const std::string& path) {
    static const std::set<std::string> deep = {"session/record", "navigation/math",  "platform/host",
                                               "platform/qt",    "platform/virtual", "desktop/theme",
                                               "desktop/tiles",  "client/window"};
    const std::size_t first = path.find('/');
    if (first == std::string::npos) return "";
    const std::size_t second = path.find('/', first + 1);
    const std::string two = path.substr(0, second == std::string::npos ? first : second);
    return deep.count(two) != 0 ? two : path.substr(0, first);
}

bool isStationRoom(const std::string& room) {
    return rankOf(room) >= rankOf("session/record");
}

bool mayInclude(const std::string& from, const std::string& to) {
    const std::string above = roomOf(from);
    const std::string below = roomOf(to);
    if (above == below) return true;
    if (below == "apps" || below.empty()) return false;
    if (above == "apps") return true;
    if (above == "robot" && to == "robotlink/quorrin_sdk.h") return true;
    if (const auto beside = kBeside.find(above); beside != kBeside.end())
        return beside->second.count(below) != 0;
    if (above == "replay") {
        return rankOf(below) >= 0 || below == "robot" || below == "platform/virtual" ||
               below == "platform/host";
    }
    if (above == "desktop") return rankOf(below) >= 0 || below == "desktop/theme" || below == "desktop/tiles";
    return rankOf(above) >= 0 && rankOf(below) >= 0 && rankOf(below) < rankOf(above);
}

}  // namespace quorrin::tree
