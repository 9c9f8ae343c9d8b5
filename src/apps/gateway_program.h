// What both gateway programs are composed of. For the mains only.
//
// A gateway takes no settings from its command line. It finds its folders by the XDG variables, which a
// station hands on to what it starts: so it belongs to one user and one data folder, and meets no other's.
#pragma once

#include <QCoreApplication>
#include <iostream>
#include <string>

#include "base/program_error.h"
#include "gateway/gateway.h"
#include "platform/host/host_folders.h"
#include "platform/host/lock_window.h"
#include "platform/host/log_file.h"
#include "platform/host/posix_files.h"
#include "platform/host/station_window.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_streams.h"
#include "platform/qt/signal_watch.h"

namespace quorrin {

inline int gatewayUsage(const GatewayKind& kind) {
    std::cout << kind.program << " [--help | --version]\n\n"
              << "Carries the " << roleName(kind.role) << " link between the station and its robot.\n"
              << "The station starts and closes it; it reads the robot's address from\n"
              << "$XDG_CONFIG_HOME/quorrin/" << kind.profile << " and writes a log to\n"
              << "$XDG_STATE_HOME/quorrin/" << kind.program << ".log. SIGTERM closes it.\n";
    return 0;
}

inline int runGateway(const GatewayKind& kind, int argc, char** argv) {
    const std::string option = argc > 1 ? argv[1] : "";
    if (option == "--help" || option == "-h") return gatewayUsage(kind);
    if (option == "--version") {
        std::cout << kind.program << " " QUORRIN_VERSION "\n";
        return 0;
    }
    if (argc > 1) {
        std::cerr << kind.program << ": unknown option " << option << "\n";
        return 2;
    }
    const QCoreApplication application(argc, argv);
    PosixFiles files;
    const HostFolders host = hostFolders();
    QtClock clock;
    LogFile log(clock, host.state + "/" + kind.program + ".log");
    const std::string missing = createHostFolders(files, host);
    if (!missing.empty()) {
        log.line("cannot make the folder " + missing);
        return 1;
    }
    QtStreams streams(clock, host.run);
    LockWindow window(host.run, kind.title);
    int status = 0;
    Gateway gateway({clock, streams, files, window, host.folders.windows,
                     [&] { return windowHolder(host.run, kStationTitle) != 0; },
                     [&](const std::string& line) { log.line(line); },
                     [&](int ended) {
                         status = ended;
                         throw ProgramEnd{};
                     }},
                    kind);
    const SignalWatch signals(clock, [&] { gateway.close(); });
    try {
        gateway.start();
        clock.run();
    } catch (const ProgramEnd&) {
        return status;
    } catch (const std::exception& error) {
        // The robot's dead man does the rest.
        log.line(std::string("ends: program error: ") + error.what());
        return 3;
    }
    return status;
}

}  // namespace quorrin
