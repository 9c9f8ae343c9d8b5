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
    for (const char* listener :
         {"\"wskCommand\", \"port\": 7060", "\"wskVideo\", \"port\": 7080", "\"wskSensor\", \"port\": 7070",
          "\"wskAudio\", \"port\": 7090", "\"wskTTS\", \"port\": 7050", "\"wskSendVoice\", \"port\": 7040"})
        text += loaded + "\"listen\": " + listener + "}\n";
    return text + loaded + "\"link\": \"robotTI\", \"op\": \"StopSoundCapture\", \"args\": []}\n";
}

// What a replay prints as the station takes its listeners down.
inline std::string listenersShut(int atMs) {
    std::string text;
    for (const char* array : {"wskCommand", "wskVideo", "wskAudio", "wskSensor", "wskTTS", "wskSendVoice"})
        text += "{\"t\": " + std::to_string(atMs) + ", \"shut\": \"" + array + "\", \"element\": 0}\n";
    return text;
}

}  // namespace quorrin
