// What the robot will do when this client lets it go ("Clos"), in words for the release button.
//
// As far as a client can know: who else holds the robot (its operator's panel or joystick) is not reported.
#pragma once

#include <string>

#include "client/known_mode.h"

namespace quorrin {

// `holds`: this client has driven and has not let go since.
std::string releaseWords(bool connected, bool holds, const KnownMode& mode);

}  // namespace quorrin
