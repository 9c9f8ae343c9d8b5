// A whole station and a client's desk in one virtual time; the client's joysticks are its own.
#pragma once

#include <string>

#include "client/client_desk.h"
#include "client/client_face.h"
#include "platform/virtual/virtual_calls.h"
#include "support/station_bench.h"

namespace quorrin {

struct DeskBench : StationBench {
    void run(std::int64_t ms) { clock.runFor(ms); }
    void load() {
        if (!gui.shown()) station.startAtMainForm();
    }
    // The station listens and all six stand.
    void connectAll() {
        load();
        desk.connect("station");
        run(2000);
    }
    // As the station's control tick does it.
    void modeBecomes(const std::string& mode) {
        gui.txtRobotStatus.setText(mode);
        run(10);
    }
    void setKeys(const HeldKeys& keys) {
        desk.drive([&keys](RemoteDriver& driver) { driver.setKeys(keys); });
    }
    ClientFace face() const { return faceOf(desk, false); }

    VirtualCalls calls{clock, sockets};
    ScriptedJoysticks clientSticks;
    ClientDesk desk{clock, calls, clientSticks, "station"};
};

}  // namespace quorrin
