#include "robot/robot_options.h"

#include <charconv>
#include <cstddef>

namespace quorrin {

namespace {

template <typename Number>
bool readNumber(const std::string& text, Number& number) {
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc{} && stop == end;
}

void readSize(const std::string& text, RobotOptions& options) {
    if (text == "320x240" || text == "640x480") {
        options.cameraWidth = text == "320x240" ? 320 : 640;
        options.cameraHeight = options.cameraWidth / 4 * 3;
    } else {
        options.error = "--camera-size needs 320x240 or 640x480, not \"" + text + "\"";
    }
}

}  // namespace

RobotOptions parseRobotOptions(const std::vector<std::string>& arguments) {
    RobotOptions options;
    for (std::size_t i = 0; i < arguments.size() && options.error.empty(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--headless") {
            options.headless = true;
        } else if (name == "--help" || name == "-h") {
            options.help = true;
        } else if (name == "--version") {
            options.version = true;
        } else if (name == "--site" || name == "--seed" || name == "--scenario" || name == "--truth" ||
                   name == "--listen" || name == "--port" || name == "--camera" || name == "--camera-size" ||
                   name == "--camera-rate") {
            if (i + 1 == arguments.size()) {
                options.error = name + " needs a value";
                break;
            }
            const std::string& value = arguments[++i];
            if (name == "--site") options.site = value;
            if (name == "--scenario") options.scenario = value;
            if (name == "--truth") options.truth = value;
            if (name == "--listen") options.listen = value;
            if (name == "--camera") {
                options.camera = value;
                if (value.empty()) options.error = "--camera needs a file or a folder";
            }
            if (name == "--camera-size") readSize(value, options);
            if (name == "--camera-rate" && (!readNumber(value, options.cameraRate) ||
                                            !(options.cameraRate >= 0.1 && options.cameraRate <= 60)))
                options.error = "--camera-rate needs a number from 0.1 to 60, not \"" + value + "\"";
            if (name == "--seed" && !readNumber(value, options.seed))
                options.error = "--seed needs a whole number from 0 on, not \"" + value + "\"";
            // The next port is the multimedia link's.
            if (name == "--port" &&
                (!readNumber(value, options.port) || options.port < 1 || options.port > 65534))
                options.error = "--port needs a number from 1 to 65534, not \"" + value + "\"";
        } else {
            options.error = "unknown option " + name;
        }
    }
    return options;
}

std::string robotUsage() {
    return "quorrin-robot [--site NAME|FILE] [--seed N] [--scenario FILE] [--truth FILE]\n"
           "              [--listen ADDRESS] [--port P] [--camera FILE|FOLDER] [--camera-size WxH]\n"
           "              [--camera-rate N] [--headless] | --help | --version\n"
           "\n"
           "A simulated robot in a simulated site, for the gateways to connect to.\n"
           "\n"
           "--site      office (the default), corridor, clutter, hall, or a site file\n"
           "--seed      of the sensors' and wheels' noise; 1\n"
           "--scenario  faults with times, one JSON object a line\n"
           "--truth     writes where the robot really is, ten JSON objects a second\n"
           "--listen    address to listen on; 127.127.0.1\n"
           "--port      of the motion link; the multimedia link has the next one; 10001\n"
           "--camera    shows this picture, or this folder's pictures one after another (BMP, JPEG),\n"
           "            in place of what the robot sees\n"
           "--camera-size  320x240 (the default) or 640x480\n"
           "--camera-rate  pictures a second at most, 0.1 to 60; 15\n"
           "--headless  no window, also where there is a display\n"
           "\n"
           "Formats: docs/site-format.md. Ends on Ctrl-C, SIGTERM or with its window.\n";
}

}  // namespace quorrin
