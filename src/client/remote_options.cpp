#include "client/remote_options.h"

#include <cstddef>

namespace quorrin {

RemoteOptions parseRemoteOptions(const std::vector<std::string>& arguments) {
    RemoteOptions options;
    for (std::size_t i = 0; i < arguments.size() && options.error.empty(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--help" || name == "-h") {
            options.help = true;
        } else if (name == "--version") {
            options.version = true;
        } else if (name == "--host" || name == "--script") {
            if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
                options.error = name + " needs a value";
            } else {
                (name == "--host" ? options.host : options.script) = arguments[++i];
            }
        } else {
            options.error = "unknown option " + name;
        }
    }
    if (options.help || options.version) options.error.clear();
    if (options.error.empty() && !options.help && !options.version && !options.script.empty() &&
        options.host.empty())
        options.error = "--script needs --host";
    return options;
}

std::string remoteUsage() {
    return "quorrin-remote [--host HOST] | --host HOST --script FILE | --help | --version\n"
           "\n"
           "A client for the six remote channels of a Quorrin station.\n"
           "\n"
           "Without a script it opens a window to drive the robot with keys or a joystick.\n"
           "\n"
           "--host    name or IPv4 address of the station's machine; the window begins with 127.0.0.1\n"
           "--script  does what the file says and ends; needs no display\n"
           "\n"
           "A script has one verb a line; lines that begin with # are comments:\n"
           "\n"
           "  connect                        all six connections; 10 s at most\n"
           "  hangup [CHANNEL]               command, sensor, video, audio, voice, speech\n"
           "  drive F1 F2 F3 F4 F5 F6 F7     steering gas brake head-up-down head-left-right mouth "
           "avoidance\n"
           "  mode                           the mode key\n"
           "  clos                           lets the robot go; it may wander off by itself\n"
           "  ping on|off                    the sign of life every 3 s; on at the start\n"
           "  wait MS\n"
           "  expect report REGEX within MS  a report in which the expression is found;\n"
           "                                 at most 500 characters, no references back\n"
           "  say TEXT                       the robot speaks\n"
           "  quit                           ends the script, as its end does\n"
           "\n"
           "At its end a robot that is still held is let go: the neutral command, then \"Clos\".\n"
           "\n"
           "Ends with 0 when every line held, 1 when one did not, 2 when the script or the command line\n"
           "cannot be used (nothing is sent then), 3 on a program error.\n";
}

}  // namespace quorrin
