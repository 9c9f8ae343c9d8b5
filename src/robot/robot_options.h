// The command line of quorrin-robot.
//
// Reads no file and no environment. An error is a text that names the argument.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorrin {

struct RobotOptions {
    std::string site = "office";
    std::uint64_t seed = 1;
    std::string scenario;  // files; "" for none
    std::string truth;
    std::string listen = "127.127.0.1";
    int port = 10001;
    std::string camera;  // a picture file or a folder of them; "" for what the robot sees
    int cameraWidth = 320;
    int cameraHeight = 240;
    double cameraRate = 15;  // pictures a second
    bool headless = false;
    bool help = false;
    bool version = false;
    std::string error;
};

RobotOptions parseRobotOptions(const std::vector<std::string>& arguments);
std::string robotUsage();

}  // namespace quorrin
