#include "session/remote_rooms.h"

#include "session/status_record.h"

namespace quorrin {

RemoteRooms::RemoteRooms(const StationPorts& ports, PublicValues& values, frmGUI& gui, frmControlPanel& panel,
                         SessionSeams& seams)
    : connections_({ports.clock,
                    *ports.sockets,
                    ports.boxes,
                    ports.robotTI,
                    ports.wavePlayer,
                    values,
                    gui,
                    gui,
                    gui,
                    gui,
                    [&panel] { return panel.shown(); },
                    // The voice object does not exist yet.
                    {}}) {
    seams.setUpSockets = [this] { connections_.startRemoteListeners(); };
    seams.dropRemoteSession = [this] { connections_.dropRemoteSession(); };
    seams.closeAllSockets = [this] { connections_.closeAllSockets(); };
    seams.sendStatus = [this](int element, const std::string& record) {
        connections_.sendStatus(element, record);
    };
    seams.changeCountChanged = [&values, &gui, &seams] {
        reportChange(gui, values.remoteCommandsSeen, seams.sendStatus);
    };
}

}  // namespace quorrin
