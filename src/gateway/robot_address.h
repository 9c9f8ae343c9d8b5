// Where the robot is, as a gateway's profile file says: section WiFi, keys WiFiIP and WiFiPort.
//
// Does not resolve or try anything. A file that does not say it gives a fault, a text for the log.
#pragma once

#include <string>

#include "platform/files.h"

namespace quorrin {

struct RobotAddress {
    std::string address;
    int port = 0;       // 1 to 65535
    std::string fault;  // "" when the two above can be used
};

RobotAddress readRobotAddress(Files& files, const std::string& profile);

}  // namespace quorrin
