// The real ports that a station stands on, for the mains of the two stations: folders, files, clock, links,
// joysticks, sockets, loudspeaker, programs. Composes, decides nothing.
#pragma once

#include <string>
#include <vector>

#include "platform/host/host_folders.h"
#include "platform/host/lock_window.h"
#include "platform/host/posix_append_file.h"
#include "platform/host/posix_files.h"
#include "platform/host/posix_programs.h"
#include "platform/host/station_window.h"
#include "platform/paced_clock.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_sockets.h"
#include "platform/qt/qt_streams.h"
#include "platform/qt/sdl_joysticks.h"
#include "platform/qt/sdl_wave_player.h"
#include "robotlink/gateway_link.h"
#include "session/first_start.h"
#include "session/flight_recorder.h"
#include "session/recorded_joysticks.h"
#include "session/recorded_link.h"
#include "session/recorded_sockets.h"
#include "session/station.h"

namespace quorrin {

struct RealStation {
    HostFolders host = hostFolders();
    PosixFiles files;
    // "" when all folders are there, else the one that cannot be made.
    std::string missingFolder = createHostFolders(files, host);
    QtClock clock;
    // The session's own time; what a station does on it can be replayed exactly.
    PacedClock time{clock};
    QtStreams streams{clock, host.run};
    LockWindow window{host.run, kStationTitle};
    GatewayLink myRobot{time, streams, files};
    GatewayLink robotTI{time, streams, files};
    SdlJoysticks sticks{clock, time};
    // What comes in, written down; the station uses links, joysticks and sockets through it.
    FlightRecorder recorder{time, files, createPosixAppendFile, host.state};
    RecordedLink recordedMyRobot{myRobot, LinkName::myRobot, recorder};
    RecordedLink recordedRobotTI{robotTI, LinkName::robotTI, recorder};
    RecordedJoysticks recordedSticks{sticks, recorder};
    QtSockets sockets{time};
    RecordedSockets recordedSockets{sockets, recorder};
    SdlWavePlayer loudspeaker;
    // Goes first at the end: it waits for the gateways that were asked to close.
    PosixPrograms programs{host.run};

    // Makes this the one station of its data folder; waits up to 10 s for one that is closing. False when
    // another one lives.
    bool claim() {
        constexpr int kWaits = 200;
        constexpr int kWaitMs = 50;
        WindowClaim claimed = window.claim();
        for (int i = 0; i < kWaits && claimed == WindowClaim::otherClosing; ++i) {
            clock.block(kWaitMs);
            claimed = window.claim();
        }
        return claimed == WindowClaim::taken;
    }

    // The session begins now: its time 0, and its recording. Before the login loads.
    void beginSession(Station& station) {
        recordedRobotTI.setSoundBuffer([this](Long address) { return robotTI.soundBuffer(address); });
        for (Form* form : station.forms()) recorder.watchForm(*form, form == &station.gui);
        time.begin();
        recorder.begin();
    }

    // Fills the application folder; one line for each thing that could not be supplied.
    std::vector<std::string> firstStart() {
        return fillApplicationFolder(files, host.folders.application, host.share)
            .complaints(host.folders.application, host.share);
    }
};

}  // namespace quorrin
