// The watch: prints the named values of a station every so many milliseconds, the first time at once.
//
// It comes after everything else that is due at its time, and waits for the end of a blocking wait like any
// other event, so that a watch that falls due several times meanwhile prints once.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/timer_mm.h"
#include "replay/output.h"
#include "replay/script_line.h"
#include "replay/station_fields.h"

namespace quorrin {

class Watch {
  public:
    // All must outlive the watch. Errors: ScriptError for an unknown name, and for a name given twice.
    Watch(Clock& clock, Output& output, const StationFields& fields, const WatchLine& line,
          std::int64_t lineNumber);

    bool hasPrinted() const { return hasPrinted_; }

  private:
    void print();

    Output& output_;
    std::vector<std::pair<std::string, FieldPrinter>> watched_;
    TimerMM timer_;
    bool hasPrinted_ = false;
};

}  // namespace quorrin
