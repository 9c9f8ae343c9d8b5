// The station where there is no screen: the same forms and the same login, a status line instead of windows.
//
// Reads neither command line nor environment but for the XDG folders. Ends with 0 after the shutdown routine
// (Ctrl-C, SIGTERM, SIGHUP), 2 when it cannot start, 3 on a program error.
#include <QCoreApplication>
#include <algorithm>

#include "apps/end_by_operator.h"
#include "apps/real_station.h"
#include "base/program_error.h"
#include "console/crash_report.h"
#include "console/status_line.h"
#include "platform/host/terminal.h"
#include "platform/host/terminal_boxes.h"
#include "platform/qt/signal_watch.h"
#include "platform/timer_mm.h"
#include "session/station.h"

namespace quorrin {
namespace {

constexpr int kCannotStart = 2;
constexpr int kProgramError = 3;

struct CannotStart {
    std::string why;
};

std::string joinedBoxes(const frmLogin& login) {
    std::string joined = login.txt_ip(0).text();
    for (int i = 1; i < 4; ++i) joined += "." + login.txt_ip(i).text();
    joined.erase(std::remove(joined.begin(), joined.end(), ' '), joined.end());
    return joined;
}

// The operator's part of the login: looks whether the boxes show the stored address, and presses OK.
void logIn(Station& station) {
    station.startAtLogin();
    const std::string& stored = station.values.robotIp;
    const std::string shown = joinedBoxes(station.login);
    if (shown != stored)
        throw CannotStart{
            "the stored address is " + stored + ", but the login form would make " + shown +
            " of it; nothing was written. Type the address anew in the station with windows, or "
            "store one whose first two fields have the same length"};
    if (!station.login.cmdOK.enabled())
        throw CannotStart{"the stored port is \"" + station.values.robotPort +
                          "\", which the login form does not take; nothing was written"};
    station.login.cmdOK.operatorClick();
}

int runStation(RealStation& real, Terminal& terminal) {
    TerminalBoxes answered(terminal);
    RecordedBoxes boxes(answered, real.recorder);
    const std::int64_t startMs = real.clock.nowMs();
    Station station({real.time,
                     real.files,
                     real.programs,
                     boxes,
                     real.recordedMyRobot,
                     real.recordedRobotTI,
                     real.host.folders,
                     [] { throw ProgramEnd{}; },
                     {},
                     &real.recordedSticks,
                     &real.recordedSockets});
    bool recording = true;
    TimerMM status(real.clock, [&] {
        if (recording && !real.recorder.complaint().empty()) {
            recording = false;
            terminal.line(real.recorder.complaint());
        }
        terminal.live(statusLine(station.values, station.gui.txtRobotStatus.text(),
                                 station.gui.ConnectionList.count() > 0,
                                 static_cast<double>(real.clock.nowMs() - startMs) / 1000));
    });
    status.setInterval(terminal.isTerminal() ? 200 : 1000);
    status.setEnabled(true);
    real.files.onWriteFailed = [&](const std::string& path) { terminal.line(cannotWrite(path)); };
    const SignalWatch signals(real.time, [&] { endByOperator(station); });
    real.beginSession(station);
    real.time.post([&] { logIn(station); });
    try {
        real.clock.run();
    } catch (const ProgramEnd&) {
        real.window.hide();
        return 0;
    } catch (const CannotStart& reason) {
        terminal.line("quorrin-station-headless: " + reason.why);
        return kCannotStart;
    } catch (const std::exception& error) {
        stopDrives(real.myRobot);
        real.recorder.flush();
        terminal.line("quorrin-station-headless: " + programErrorLine(real.time.failedIn(), error.what()));
        return kProgramError;
    }
    return 0;
}

int main() {
    Terminal terminal;
    RealStation real;
    if (!real.missingFolder.empty()) {
        terminal.line("quorrin-station-headless: " + cannotMakeFolder(real.missingFolder));
        return kCannotStart;
    }
    if (!real.claim()) {
        terminal.line("quorrin-station-headless: " + anotherStationRuns(real.host.folders.application));
        return kCannotStart;
    }
    for (const std::string& complaint : real.firstStart()) terminal.line(complaint);
    return runStation(real, terminal);
}

}  // namespace
}  // namespace quorrin

int main(int, char** argv) {
    int count = 1;  // the command line is not read
    const QCoreApplication application(count, argv);
    return quorrin::main();
}
