// How a station with windows ends when a handler has thrown a program error: the drives first, then the
// recording, then a box that tells what and where, for as long as the operator likes to read it.
//
// Called when the session's clock has stopped; needs Qt's application. A signal closes the box.
#pragma once

#include <QCoreApplication>
#include <string>

#include "apps/real_station.h"
#include "console/crash_report.h"
#include "desktop/forms/window_boxes.h"
#include "platform/host/terminal.h"
#include "platform/qt/signal_watch.h"

namespace quorrin {

constexpr int kEndedByProgramError = 3;

inline int endInCrash(RealStation& real, Terminal& terminal, const std::string& what) {
    const std::string& place = real.time.failedIn();
    // The session's clocks deliver no more.
    QtClock clock;
    const SignalWatch signals(clock, [] { QCoreApplication::exit(); });
    const auto write = [&] {
        real.recorder.flush();
        terminal.line("quorrin-station: " + programErrorLine(place, what));
    };
    PlainBoxes boxes;
    reportCrash(real.myRobot, write, boxes, place, what);
    return kEndedByProgramError;
}

}  // namespace quorrin
