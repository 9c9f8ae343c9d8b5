// A program's log: one line an event with local date and time, to a file and to standard error.
//
// The file is appended to. Once it passes a megabyte it becomes "NAME.1" (the one before is lost) and a new
// one begins. A log that cannot be written is no fault of the program's: the line still goes to standard
// error.
#pragma once

#include <string>

#include "platform/clock.h"

namespace quorrin {

class LogFile {
  public:
    LogFile(const Clock& clock, std::string path) : clock_(clock), path_(std::move(path)) {}
    void line(const std::string& text);

  private:
    const Clock& clock_;
    std::string path_;
};

}  // namespace quorrin
