// Remote access of one station put together: the channels bound to the places that the session keeps for
// them.
//
// Owns the channels. The forms, the record and the ports are the station's and must outlive it.
#pragma once

#include "console/frm_control_panel.h"
#include "console/frm_gui.h"
#include "remote/remote_connections.h"
#include "session/record/public_values.h"
#include "session/session_seams.h"
#include "session/station_ports.h"

namespace quorrin {

class RemoteRooms {
  public:
    // The ports must have sockets.
    RemoteRooms(const StationPorts& ports, PublicValues& values, frmGUI& gui, frmControlPanel& panel,
                SessionSeams& seams);

  private:
    RemoteConnections connections_;
};

}  // namespace quorrin
