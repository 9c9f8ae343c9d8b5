// What a client knows of the robot's mode from the reports: the mode, and the one that JOY was entered from,
// to which a robot goes back when its driver lets it go. Nothing is known before the first report, nor of
// what went on while there was no connection.
#pragma once

#include <string>

namespace quorrin {

struct KnownMode {
    std::string now;
    std::string beforeJoy;

    void take(const std::string& mode) {
        if (mode == "JOY" && now != "JOY") beforeJoy = now;
        if (mode != "JOY") beforeJoy.clear();
        now = mode;
    }
    void forget() { *this = {}; }
};

}  // namespace quorrin
