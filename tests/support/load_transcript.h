// What every replay prints while the main form loads, from time 0 (or from where the login hands over).
#pragma once

#include <string>

namespace quorrin {

inline std::string loadTranscript(int beginMs = 0) {
    const std::string begin = "{\"t\": " + std::to_string(beginMs) + ", ";
    const std::string loaded = "{\"t\": " + std::to_string(beginMs + 1000) + ", ";
    std::string text =
        begin + "\"start\": \"QuorrinGatewayTI\"}\n" +                                          //
        loaded + "\"link\": \"robotTI\", \"op\": \"BindGateway\", \"args\": [\"ticom\"]}\n" +   //
        loaded + "\"link\": \"myRobot\", \"op\": \"BindGateway\", \"args\": [\"motcom\"]}\n" +  //
        loaded + "\"link\": \"myRobot\", \"op\": \"SetDriveControlMode\", \"args\": [0, 2]}\n" + loaded +
        "\"link\": \"myRobot\", \"op\": \"SetDriveControlMode\", \"args\": [1, 2]}\n";
    // The driver's own start and suspend, the load's suspend, and the two of suspendRobot.
    for (int i = 0; i < 4; ++i) {
        text += loaded + "\"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [0]}\n";
        text += loaded + "\"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [1]}\n";
    }
    return text + loaded + "\"link\": \"robotTI\", \"op\": \"StopSoundCapture\", \"args\": []}\n";
}

}  // namespace quorrin
