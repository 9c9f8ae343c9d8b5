#include "session/station.h"

namespace quorrin {

struct Station::Parts {};

Station::Station(const StationPorts& ports)
    : login(ports.clock), gui(ports.clock), controlPanel(ports.clock), ports_(ports) {}

Station::~Station() = default;

void Station::startAtLogin() {
    login.show();
}

void Station::startAtMainForm() {
    gui.show();
}

std::vector<Form*> Station::forms() {
    return {&gui, &login, &controlPanel};
}

const speedP2PVFH* Station::navigator() const {
    return nullptr;
}

const GPS* Station::gps() const {
    return nullptr;
}

const SensorMapBuilder* Station::sensorMap() const {
    return nullptr;
}

const AntiStuck* Station::antiStuck() const {
    return nullptr;
}

}  // namespace quorrin
