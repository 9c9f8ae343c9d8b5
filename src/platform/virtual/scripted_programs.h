// Programs that exist only in virtual time: a started gateway has its window at once and loses it when told
// to close. No process is started.
//
// Windows are known by the program's file name: QuorrinGatewaymot and QuorrinGatewayTI have one each,
// whatever folder they are started from; other programs have none. One window lives per title: a second start
// of a running gateway changes nothing. The hooks tell what the station asked for; they must not call back.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "platform/programs.h"

namespace quorrin {

class ScriptedPrograms : public Programs {
  public:
    ScriptedPrograms();

    void start(const std::string& path) override;
    Window findWindow(const std::string& title) override;
    bool isWindow(Window window) override;
    void postClose(Window window) override;

    // A program was started: its file name without folder and without ".exe".
    std::function<void(const std::string& name)> onStart;
    // A window was looked for: not found, or found and told to close.
    std::function<void(const std::string& title, bool found)> onClose;

    // Gives another program a window with that title.
    void addTitle(const std::string& programName, const std::string& title) { titles_[programName] = title; }
    // Programs of that file name no longer come up: start() is told, no window appears.
    void failStart(const std::string& programName) { failing_.insert(programName); }
    // While set, a found window is gone by the time somebody asks isWindow().
    void setWindowsStale(bool stale) { stale_ = stale; }
    // The gateway died by itself.
    void loseWindow(const std::string& title);
    bool hasWindow(const std::string& title) const { return windows_.count(title) != 0; }

  private:
    std::map<std::string, std::string> titles_;  // by program file name
    std::map<std::string, Window> windows_;      // by title
    std::set<std::string> failing_;
    Window lastWindow_ = 0;
    bool stale_ = false;
};

}  // namespace quorrin
