// Paths and login values of this session. Paths use "/" between folders.
#pragma once

#include <string>

namespace quorrin {

struct PathValues {
    std::string applicationFolder;
    std::string gatewayMotIniPath;
    std::string gatewayTiIniPath;
    std::string gatewayTiExePath;
    std::string gatewayMotExePath;
    std::string robotIp;    // dotted, as typed
    std::string robotPort;  // as typed
    std::string sdkIniPath;
    std::string gatewayWindowTitle;  // argument of the window-closing routine
};

}  // namespace quorrin
