// Other programs on a POSIX machine: started detached, found by the lock that stands for their window.
//
// A started program gets a session of its own (Ctrl-C on this program's terminal is not for it), the same
// environment, and nothing to read or write on: it keeps a log of its own. A Window is its process id. Asking
// a window to close is SIGTERM to the process that holds the title's lock at that moment.
//
// The caller's process must not itself hold a window lock of the same run folder and title.
#pragma once

#include <map>
#include <string>

#include "platform/programs.h"

namespace quorrin {

class PosixPrograms : public Programs {
  public:
    explicit PosixPrograms(std::string runFolder) : runFolder_(std::move(runFolder)) {}

    void start(const std::string& path) override;
    Window findWindow(const std::string& title) override;
    bool isWindow(Window window) override;
    void postClose(Window window) override;

  private:
    std::string runFolder_;
    std::map<Window, std::string> titles_;  // of the windows that were found
};

}  // namespace quorrin
