// Who may include whom: the order of the rooms under src/, as functions over paths.
//
// From low to high: ports, base, wire, session/record, navigation/math, robotlink, navigation, sound,
// imaging, remote, console, session. A room includes itself and what is lower. gateway, robot and client are
// leaves above wire, base and the ports (robot also sees the link's interface). The ports' siblings
// (platform/host, /qt, /virtual) know ports and base and not each other, except that platform/qt is built on
// platform/host. replay stands above the session, the robot and virtual time; desktop above the session; apps
// above everything, and nothing includes apps. desktop/theme and desktop/tiles are the look that the windows
// of several programs share: they know base alone, and the window of the client (client/window) is built of
// them.
#pragma once

#include <string>

namespace quorrin::tree {

// The room that a path relative to src/ lies in: "navigation/math" for "navigation/math/angles.h".
std::string roomOf(const std::string& path);

// Whether a file of src/ may include another one; both paths relative to src/.
bool mayInclude(const std::string& from, const std::string& to);

// Whether a room belongs to the station: plain C++ without Qt, clock or socket.
bool isStationRoom(const std::string& room);

}  // namespace quorrin::tree
