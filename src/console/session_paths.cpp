#include "console/session_paths.h"

#include "base/general_functions.h"

namespace quorrin {

void buildPaths(PathValues& paths, const Folders& folders) {
    paths.applicationFolder = folders.application;
    paths.gatewayTiExePath = folders.programs + "/QuorrinGatewayTI";
    paths.gatewayMotExePath = folders.programs + "/QuorrinGatewaymot";
    paths.gatewayMotIniPath = folders.windows + "/gateway_mot.ini";
    paths.gatewayTiIniPath = folders.windows + "/gateway_ti.ini";
    paths.sdkIniPath = folders.application + "/Quorrinsdk.ini";
}

void readStoredAddress(PathValues& paths, Files& files) {
    paths.robotIp.clear();
    paths.robotPort.clear();
    if (files.fileExists(paths.gatewayMotIniPath)) {
        paths.robotIp = ReadIni("WiFi", "WiFiIP", paths.gatewayTiIniPath, files);
        paths.robotPort = ReadIni("WiFi", "WiFiPort", paths.gatewayMotIniPath, files);
    }
    if (paths.robotIp.empty() || paths.robotPort.empty()) {
        paths.robotIp = kDefaultRobotIp;
        paths.robotPort = kDefaultRobotPort;
    }
}

}  // namespace quorrin
