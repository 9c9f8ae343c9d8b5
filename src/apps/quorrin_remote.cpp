// The remote client as a program: its window, and the script without a display.
//
// Ends with 0 when a script held or the window was closed, 1 when a script did not hold, 2 when it cannot
// begin, 3 on a program error.
#include <QApplication>
#include <QPalette>
#include <iostream>

#include "base/program_error.h"
#include "client/remote_options.h"
#include "client/script_run.h"
#include "client/window/remote_window.h"
#include "desktop/theme/theme.h"
#include "platform/host/posix_files.h"
#include "platform/host/terminal.h"
#include "platform/qt/qt_calls.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/sdl_joysticks.h"
#include "platform/qt/signal_watch.h"

namespace quorrin {
namespace {

constexpr int kCannotBegin = 2;
constexpr int kProgramError = 3;
constexpr const char* kUsualHost = "127.0.0.1";
constexpr int kStandardError = 2;

int complain(const std::string& what) {
    std::cerr << "quorrin-remote: " << what << std::endl;
    return kCannotBegin;
}

int runScript(const std::string& host, RemoteScript script) {
    // A reader of the output that is slow or goes away holds up nothing: letting the robot go least of all.
    Terminal terminal;
    Terminal errors(kStandardError);
    QtClock clock;
    QtCalls calls(clock);
    RemoteLink link(clock, calls, host);
    int status = kProgramError;
    ScriptRun run(clock, calls, link, std::move(script),
                  {[&terminal](const std::string& line) { terminal.line(line); },
                   [&errors](const std::string& why) { errors.line("quorrin-remote: " + why); },
                   [&status](int ended) {
                       status = ended;
                       throw ProgramEnd{};
                   }});
    const SignalWatch signals(clock, [&run] { run.interrupt(); });
    run.start();
    try {
        clock.run();
    } catch (const ProgramEnd&) {
    }
    return status;
}

int scriptProgram(const RemoteOptions& options, int argc, char** argv) {
    PosixFiles files;
    const auto text = files.read(options.script);
    if (!text) return complain("cannot read the script " + options.script);
    RemoteScript script = parseRemoteScript(*text);
    if (!script.error.empty()) return complain(options.script + ": " + script.error);
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("quorrin-remote");
    try {
        return runScript(options.host, std::move(script));
    } catch (const std::exception& error) {
        complain(std::string("program error: ") + error.what());
        return kProgramError;
    }
}

void runWindow(const std::string& host) {
    QtClock clock;
    QtCalls calls(clock);
    SdlJoysticks joysticks(clock, clock);
    ClientDesk desk(clock, calls, joysticks, host.empty() ? kUsualHost : host);
    RemoteWindow window(desk, clock, [] { throw ProgramEnd{}; });
    const SignalWatch signals(clock, [&window] { window.end(); });
    window.show();
    try {
        clock.run();
    } catch (const ProgramEnd&) {
    }
}

// Qt ends a program that finds no screen with a core dump.
bool hasScreen() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

int windowProgram(const RemoteOptions& options, int argc, char** argv) {
    if (!hasScreen()) return complain("there is no display for the window; --script works without one");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quorrin-remote"));
    // The last words go out after the window is gone.
    QApplication::setQuitOnLastWindowClosed(false);
    applyTheme(application, themeOf(QApplication::palette()));
    try {
        runWindow(options.host);
    } catch (const std::exception& error) {
        complain(std::string("program error: ") + error.what());
        return kProgramError;
    }
    return 0;
}

int start(int argc, char** argv) {
    const RemoteOptions options = parseRemoteOptions({argv + 1, argv + argc});
    if (!options.error.empty()) return complain(options.error + " (--help tells the rest)");
    if (options.help) {
        std::cout << remoteUsage();
        return 0;
    }
    if (options.version) {
        std::cout << "quorrin-remote " QUORRIN_VERSION "\n";
        return 0;
    }
    if (!options.script.empty()) return scriptProgram(options, argc, argv);
    return windowProgram(options, argc, argv);
}

}  // namespace
}  // namespace quorrin

int main(int argc, char** argv) {
    return quorrin::start(argc, argv);
}
