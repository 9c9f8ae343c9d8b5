// A station and its remote clients, in virtual time. The log also tells what was asked of the sockets:
// "listen wskCommand 7060", "accept wskCommand 1", "shut wskCommand 1", "send wskSensor 1 0,0,0,,JOY,0",
// and "ring".
#pragma once

#include <string>
#include <vector>

#include "remote/channels.h"
#include "remote/frame_codec.h"
#include "remote/remote_connections.h"
#include "support/station_bench.h"

namespace quorrin {

struct RemoteBench : StationBench {
    static constexpr const char* kAddress = "10.0.0.5";

    RemoteBench() {
        const auto named = [this](const char* what, const std::string& array, int number) {
            log.push_back(std::string(what) + array + " " + std::to_string(number));
        };
        sockets.onListen = [named](const std::string& array, int port) { named("listen ", array, port); };
        sockets.onAccept = [named](const std::string& array, int element) {
            named("accept ", array, element);
        };
        sockets.onShut = [named](const std::string& array, int element) { named("shut ", array, element); };
        sockets.onSend = [this](const std::string& array, int element, std::string_view bytes) {
            log.push_back("send " + array + " " + std::to_string(element) + " " + std::string(bytes));
        };
        wave.onPlay = [this] { log.push_back("ring"); };
    }

    // Loaded, and the log empty.
    void load() {
        station.startAtMainForm();
        log.clear();
    }
    void connect(const std::string& array, int port = 40000) { sockets.connect(array, kAddress, port); }
    // A client with its command connection; the ring has rung.
    void call(int port = 40000) { connect("wskCommand", port); }
    // One client on all six channels, in its element of each, and the log empty.
    void session(int port = 40000) {
        call(port);
        for (const char* array : {"wskSensor", "wskVideo", "wskAudio", "wskSendVoice", "wskTTS"})
            connect(array, port + 1);
        log.clear();
    }
    void read(const std::string& bytes, int element = 1) { sockets.receive("wskCommand", element, bytes); }
    void command(const std::string& payload, int element = 1) { read(frameOf(payload), element); }

    std::vector<std::string> lines() const {
        std::vector<std::string> all;
        for (std::size_t i = 0; i < gui.ConnectionList.count(); ++i)
            all.push_back(gui.ConnectionList.line(i));
        return all;
    }
    // What the log holds of the sockets since the last take.
    std::vector<std::string> takeSockets() {
        std::vector<std::string> some;
        for (const std::string& line : take()) {
            for (const char* start : {"listen ", "accept ", "shut ", "send ", "ring", "box "}) {
                if (line.rfind(start, 0) == 0) {
                    some.push_back(line);
                    break;
                }
            }
        }
        return some;
    }
};

}  // namespace quorrin
