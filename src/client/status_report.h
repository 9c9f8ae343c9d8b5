// The reports of the sensor channel: six fields joined by ",", without a mark, an end or a length.
//
//   X,Y,Z,place of the person,mode,0
//
// A client has only its reads to tell reports apart by. When several run together in one read, the sixth
// field of one, which always is "0", and the first of the next make one piece; so 5 n + 1 pieces of which
// every fifth begins with "0" are n reports. Anything else (a report in two reads, a comma that the operator
// typed into one of the first three boxes) cannot be told apart, and is not guessed at.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorrin {

struct StatusReport {
    std::string x;  // the first three are texts that only the operator changes
    std::string y;
    std::string z;
    std::string person;  // "1" to "4", "" before the robot's first frame
    std::string mode;    // "IDLE", "JOY", "wondering", "comm wrong", "" before the first
    std::string tail;    // "0"

    std::string text() const { return x + "," + y + "," + z + "," + person + "," + mode + "," + tail; }
    bool operator==(const StatusReport&) const = default;
};

// The reports of one read, in order; empty when they cannot be told apart.
std::optional<std::vector<StatusReport>> reportsIn(std::string_view read);

}  // namespace quorrin
