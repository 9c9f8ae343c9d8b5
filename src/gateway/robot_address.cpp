#include "gateway/robot_address.h"

#include "base/general_functions.h"
#include "base/number_text.h"

namespace quorrin {

RobotAddress readRobotAddress(Files& files, const std::string& profile) {
    if (!files.fileExists(profile)) return {"", 0, "there is no " + profile};
    const std::string address = ReadIni("WiFi", "WiFiIP", profile, files);
    const std::string port = ReadIni("WiFi", "WiFiPort", profile, files);
    if (address.empty()) return {"", 0, "no WiFiIP in " + profile};
    if (port.empty()) return {"", 0, "no WiFiPort in " + profile};
    const auto number = parseWhole(port);
    if (!number || *number < 1 || *number > 65535)
        return {"", 0, "WiFiPort is \"" + port + "\" in " + profile + ", but a port is 1 to 65535"};
    return {address, static_cast<int>(*number), ""};
}

}  // namespace quorrin
