// The station with windows.
//
// Reads neither command line nor environment but for the XDG folders (Qt reads its own). Ends with 0 after
// the shutdown routine (Exit, closing the main form or the login, Ctrl-C, SIGTERM, SIGHUP), 2 when it cannot
// start, 3 on a program error.
#include <QApplication>
#include <QDesktopServices>
#include <QPalette>
#include <QUrl>
#include <optional>

#include "apps/end_by_operator.h"
#include "apps/end_in_crash.h"
#include "apps/real_station.h"
#include "base/program_error.h"
#include "console/crash_report.h"
#include "desktop/forms/window_boxes.h"
#include "desktop/station_windows.h"
#include "desktop/theme/theme.h"
#include "platform/host/terminal.h"
#include "platform/qt/signal_watch.h"
#include "session/station.h"

namespace quorrin {
namespace {

constexpr int kCannotStart = 2;
constexpr int kLookAtRecorderMs = 1000;

int cannotStart(Terminal& terminal, const std::string& why) {
    terminal.line("quorrin-station: " + why);
    PlainBoxes().show(why, "", BoxButtons::ok);
    return kCannotStart;
}

int runStation(RealStation& real, Terminal& terminal) {
    WindowBoxes shown(real.time, [&] { real.clock.rethrowIfEnded(); });
    RecordedBoxes boxes(shown, real.recorder);
    Station station(
        {real.time, real.files, real.programs, boxes, real.recordedMyRobot, real.recordedRobotTI,
         real.host.folders, [] { throw ProgramEnd{}; },
         [](const std::string& address) { QDesktopServices::openUrl(QUrl(QString::fromStdString(address))); },
         &real.recordedSticks, &real.recordedSockets, &real.loudspeaker});
    StationWindows windows(station, OperatorActs(real.time));
    const auto complain = [&](const std::string& text) {
        terminal.line(text);
        windows.say(text);
    };
    for (const std::string& complaint : real.firstStart()) complain(complaint);
    real.files.onWriteFailed = [&](const std::string& path) { complain(cannotWrite(path)); };
    real.time.setBeforeBlock([&] { windows.beforeBlock(); });
    TimerMM look(real.clock, [&] {
        if (real.recorder.complaint().empty()) return;
        look.setEnabled(false);
        complain(real.recorder.complaint());
    });
    look.setInterval(kLookAtRecorderMs);
    look.setEnabled(true);
    try {
        const SignalWatch signals(real.time, [&] { endByOperator(station); });
        real.beginSession(station);
        real.time.post([&] { station.startAtLogin(); });
        real.clock.run();
    } catch (const ProgramEnd&) {
        real.window.hide();
        return 0;
    } catch (const std::exception& error) {
        return endInCrash(real, terminal, error.what());
    }
    return 0;
}

int main(QApplication& application) {
    // Windows come and go; the station ends by its own routine.
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("quorrin-station"));
    // As the desktop has it; not remembered.
    applyTheme(application, themeOf(QApplication::palette()));
    Terminal terminal;
    RealStation real;
    if (!real.missingFolder.empty()) return cannotStart(terminal, cannotMakeFolder(real.missingFolder));
    if (!real.claim()) return cannotStart(terminal, anotherStationRuns(real.host.folders.application));
    return runStation(real, terminal);
}

}  // namespace
}  // namespace quorrin

int main(int, char** argv) {
    int count = 1;  // the command line is not read
    QApplication application(count, argv);
    return quorrin::main(application);
}
