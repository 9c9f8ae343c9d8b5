// The remote client as a program: options, and the script without a display.
//
// Ends with 0 when a script held, 1 when it did not, 2 when it cannot begin, 3 on a program error.
#include <QCoreApplication>
#include <iostream>

#include "base/program_error.h"
#include "client/remote_options.h"
#include "client/script_run.h"
#include "platform/host/posix_files.h"
#include "platform/host/terminal.h"
#include "platform/qt/qt_calls.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/signal_watch.h"

namespace quorrin {
namespace {

constexpr int kCannotBegin = 2;
constexpr int kProgramError = 3;

int complain(const std::string& what) {
    std::cerr << "quorrin-remote: " << what << std::endl;
    return kCannotBegin;
}

int runScript(const std::string& host, RemoteScript script) {
    // A reader of the output that is slow or goes away holds up nothing.
    Terminal terminal;
    QtClock clock;
    QtCalls calls(clock);
    RemoteLink link(clock, calls, host);
    int status = kProgramError;
    ScriptRun run(clock, calls, link, std::move(script),
                  {[&terminal](const std::string& line) { terminal.line(line); },
                   [](const std::string& why) { complain(why); },
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
    return complain("the client's window is not part of this version; --script works without one");
}

}  // namespace
}  // namespace quorrin

int main(int argc, char** argv) {
    return quorrin::start(argc, argv);
}
