#include "platform/virtual/scripted_programs.h"

namespace quorrin {

namespace {

std::string programName(const std::string& path) {
    std::string name = path.substr(path.find_last_of("/\\") + 1);
    if (name.size() > 4 && name.compare(name.size() - 4, 4, ".exe") == 0) name.erase(name.size() - 4);
    return name;
}

}  // namespace

ScriptedPrograms::ScriptedPrograms() {
    addTitle("QuorrinGatewaymot", "Quorrin Gateway_MotionControl");
    addTitle("QuorrinGatewayTI", "Quorrin Gateway_Multimedia");
}

void ScriptedPrograms::start(const std::string& path) {
    const std::string name = programName(path);
    if (onStart) onStart(name);
    const auto title = titles_.find(name);
    if (title != titles_.end() && failing_.count(name) == 0) {
        if (windows_.emplace(title->second, lastWindow_ + 1).second) ++lastWindow_;
    }
}

Programs::Window ScriptedPrograms::findWindow(const std::string& title) {
    const auto found = windows_.find(title);
    if (found != windows_.end()) return found->second;
    if (onClose) onClose(title, false);
    return 0;
}

bool ScriptedPrograms::isWindow(Window window) {
    if (stale_) return false;
    for (const auto& [title, handle] : windows_) {
        if (handle == window) return true;
    }
    return false;
}

void ScriptedPrograms::postClose(Window window) {
    for (const auto& [title, handle] : windows_) {
        if (handle != window) continue;
        const std::string closed = title;
        windows_.erase(closed);
        if (onClose) onClose(closed, true);
        return;
    }
}

void ScriptedPrograms::loseWindow(const std::string& title) {
    windows_.erase(title);
}

}  // namespace quorrin
