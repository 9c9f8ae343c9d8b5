// Scripts of quorrin-remote: one verb a line, read and checked as a whole before anything is done.
//
//   connect                          all six connections; waits until they stand, 10 s at most
//   hangup [CHANNEL]                 command, sensor, video, audio, voice or speech; without one, all
//   drive F1 F2 F3 F4 F5 F6 F7       steering, gas, brake, head up and down, head left and right, mouth,
//                                    avoidance; 16-bit numbers. The counter steps itself
//   mode                             the mode key
//   clos                             lets the robot go
//   ping on|off                      whether "PING" goes out by itself; on at the start
//   wait MS                          up to an hour
//   expect report REGEX within MS    a report in which the expression is found: ECMAScript without references
//                                    back, up to 500 characters
//   say TEXT                         to be spoken by the robot
//   quit                             ends the script, as its end does
//
// Blanks around and between words do not count, except inside REGEX and TEXT; empty lines and lines that
// begin with "#" are comments. The file is UTF-8, with or without a byte order mark; TEXT goes out as
// Windows-1252 and must be sayable in it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "client/drive_fields.h"
#include "client/remote_channel.h"

namespace quorrin {

namespace step {
struct Connect {};
struct HangUp {
    std::optional<RemoteChannel> channel;
};
struct Drive {
    DriveFields fields;
};
struct Mode {};
struct Clos {};
struct Ping {
    bool on;
};
struct Wait {
    std::int64_t ms;
};
struct Expect {
    std::regex expression;
    std::int64_t withinMs;
};
struct Say {
    std::string bytes;
};
struct Quit {};
}  // namespace step

struct RemoteStep {
    using What = std::variant<step::Connect, step::HangUp, step::Drive, step::Mode, step::Clos, step::Ping,
                              step::Wait, step::Expect, step::Say, step::Quit>;
    int line = 0;
    std::string text;  // the line, trimmed
    What what;
};

struct RemoteScript {
    std::vector<RemoteStep> steps;
    // Why it cannot be used, with the line: "line 3: ..."; else "".
    std::string error;
};

RemoteScript parseRemoteScript(std::string_view text);

}  // namespace quorrin
