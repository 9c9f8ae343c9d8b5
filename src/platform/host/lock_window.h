// Windows of programs without a screen: locks on a file "TITLE.lock" in the run folder.
//
// Byte 1 is locked while the program lives, byte 0 while its window can be found; the machine drops both with
// the program, also after a kill. The holder of byte 0 is the process that is asked to close, by SIGTERM.
// Locks belong to the process: a process does not see its own ones as somebody else's.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/host/file_handle.h"
#include "platform/window.h"

namespace quorrin {

class LockWindow : public Window {
  public:
    LockWindow(const std::string& runFolder, const std::string& title);
    WindowClaim claim() override;
    void hide() override;

  private:
    std::string path_;
    FileHandle file_;
};

// The process that shows a window of that title, or 0.
pid_t windowHolder(const std::string& runFolder, const std::string& title);

}  // namespace quorrin
