#include "client/release_words.h"

namespace quorrin {

std::string releaseWords(bool connected, bool holds, const KnownMode& mode) {
    if (!connected) return "Not connected: nothing can be let go.";
    if (!holds) return "You do not hold the robot.";
    if (mode.now == "JOY" && mode.beforeJoy == "wondering")
        return "The robot stops, and then wanders off by itself.";
    if (mode.now == "JOY" && mode.beforeJoy == "IDLE")
        return "The robot stops, and its motion link is closed (IDLE).";
    if (mode.now == "comm wrong")
        return "The station has lost its robot. Once it is back, the robot wanders off by itself.";
    return "The robot stops, and may then wander off by itself.";
}

}  // namespace quorrin
