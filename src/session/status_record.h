// The status record for remote clients: five boxes of the main form as they read and a sixth field that is
// always 0, joined by ",", without a terminator.
#pragma once

#include <functional>
#include <string>

#include "console/frm_gui.h"

namespace quorrin {

std::string statusRecord(const frmGUI& gui);

// Sends the record once for each line of ConnectionList: line i goes to element i + 1 of wskSensor, and only
// while a sensor client is connected.
void broadcastStatus(const frmGUI& gui, const std::function<void(int, const std::string&)>& sendStatus);

// One tick of the periodic broadcast: every 51st tick.
void stepStatusBroadcast(frmGUI& gui, const std::function<void(int, const std::string&)>& sendStatus);

// The broadcast on a change of txtChangeCount: only once a command has been seen, and with somebody in the
// list.
void reportChange(const frmGUI& gui, bool remoteCommandsSeen,
                  const std::function<void(int, const std::string&)>& sendStatus);

// A change of a reported box: counts in txtChangeCount, which goes back to 0 where it would reach 32766.
void countChange(TextBox& txtChangeCount);

}  // namespace quorrin
