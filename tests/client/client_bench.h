// A whole station and a client of it in one virtual time.
#pragma once

#include <string>
#include <vector>

#include "client/remote_link.h"
#include "platform/virtual/virtual_calls.h"
#include "support/station_bench.h"

namespace quorrin {

struct ClientBench : StationBench {
    ClientBench() {
        sockets.onListen = [this](const std::string& array, int) { listening.push_back(array); };
        sockets.onAccept = [this](const std::string& array, int) { accepted.push_back(array); };
        link.onState.add([this](RemoteChannel channel) {
            states.push_back(std::string(nameOf(channel)) + " " + stateName(link.state(channel)));
        });
        link.onReport.add([this](const StatusReport& report) { reports.push_back(report.text()); });
    }
    static std::string stateName(ChannelState state) {
        switch (state) {
            case ChannelState::off:
                return "off";
            case ChannelState::connecting:
                return "connecting";
            case ChannelState::connected:
                return "connected";
            case ChannelState::waiting:
                break;
        }
        return "waiting";
    }
    void run(std::int64_t ms) { clock.runFor(ms); }
    // The station listens, all six stand, and the logs are empty.
    void connectAll() {
        if (listening.empty()) station.startAtMainForm();
        link.start();
        run(2000);
        states.clear();
        reports.clear();
        log.clear();
    }
    // As the station's control tick does it.
    void modeBecomes(const std::string& mode) {
        gui.txtRobotStatus.setText(mode);
        run(10);
    }

    std::vector<std::string> listening;
    std::vector<std::string> accepted;
    VirtualCalls calls{clock, sockets};
    RemoteLink link{clock, calls, "station"};
    std::vector<std::string> states;
    std::vector<std::string> reports;
};

}  // namespace quorrin
