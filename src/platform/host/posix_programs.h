// Other programs on a POSIX machine: started detached, found by the lock that stands for their window.
//
// A started program gets a session of its own (Ctrl-C on this program's terminal is not for it), the same
// environment, and nothing to read or write on: it keeps a log of its own. A Window is its process id. Asking
// a window to close is SIGTERM to the process that holds the title's lock at that moment. One that still
// shows its window a second after it was asked hangs, and would keep its successor out: the next start()
// kills it.
//
// Started programs are collected when they end. The destructor waits up to a second for those that were asked
// to close, so that a station leaves nothing behind; after that they are on their own.
//
// The caller's process must not itself hold a window lock of the same run folder and title.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/programs.h"

namespace quorrin {

class PosixPrograms : public Programs {
  public:
    explicit PosixPrograms(std::string runFolder) : runFolder_(std::move(runFolder)) {}
    ~PosixPrograms() override;
    PosixPrograms(const PosixPrograms&) = delete;
    PosixPrograms& operator=(const PosixPrograms&) = delete;

    void start(const std::string& path) override;
    Window findWindow(const std::string& title) override;
    bool isWindow(Window window) override;
    void postClose(Window window) override;

  private:
    void collect();
    // A started program that was asked to close is still there.
    bool closing() const;
    void killHung();

    std::string runFolder_;
    std::vector<pid_t> started_;            // and not collected yet
    std::map<Window, std::int64_t> asked_;  // to close, and when (ms)
    std::map<Window, std::string> titles_;  // of the windows that were found
};

}  // namespace quorrin
