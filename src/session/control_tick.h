// The heartbeat of a session, ten times a second: link watchdogs, head, who holds the robot, mode machine,
// read-outs, status broadcast, power byte; and the slower display tick.
//
// Fires for the whole life of the main form; tickEnabled gates all but the power byte's flush. It blocks in
// some transitions (500 ms) and in the link recovery (4 s in all). Nothing that it asks of the robot reports
// back. A threshold box that holds no number is a ProgramError.
#pragma once

#include <functional>
#include <string>

#include "session/tick_parts.h"

namespace quorrin {

class ControlTick {
  public:
    ControlTick(TickParts parts, const std::function<void(int, const std::string&)>& sendStatus);

    void tmrControl_Timer();
    // Ranges to their boxes, the map anew; only while displayEnabled. Errors are ignored.
    void displayTimer_Timer();
    void tmrComPing_Timer() {}

  private:
    bool stepSession();
    void showDiagnostics();

    TickParts parts_;
    const std::function<void(int, const std::string&)>& sendStatus_;
};

}  // namespace quorrin
