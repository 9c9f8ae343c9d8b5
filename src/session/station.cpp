#include "session/station.h"

#include <optional>

#include "base/program_error.h"
#include "console/login.h"
#include "console/session_paths.h"
#include "session/archive_rooms.h"
#include "session/console_rooms.h"
#include "session/end_task.h"
#include "session/main_form.h"
#include "session/remote_rooms.h"

namespace quorrin {

struct Station::Parts {
    Parts(const StationPorts& ports, Station& station)
        : console(ports,
                  {station.values, station.gui, station.controlPanel, station.zoomCamera, station.about},
                  station.seams),
          archive(ports, station.values, station.gui),
          mainForm(ports, station.values, station.gui, station.controlPanel, station.seams),
          loginLogic(station.login, station.values, ports.files, ports.boxes, ports.folders,
                     {[ports, &station](const std::string& title) {
                          EndTask(title, station.values, ports.programs, ports.boxes, ports.clock);
                      },
                      [&station] { station.showMainForm(); },
                      [ports] {
                          if (ports.endProgram) ports.endProgram();
                          throw ProgramEnd{};
                      }}) {
        if (ports.sockets != nullptr)
            remote.emplace(ports, station.values, station.gui, station.controlPanel, station.seams);
    }

    ConsoleRooms console;
    ArchiveRooms archive;
    MainForm mainForm;
    Login loginLogic;
    std::optional<RemoteRooms> remote;
};

Station::Station(const StationPorts& ports)
    : login(ports.clock),
      gui(ports.clock),
      controlPanel(ports.clock),
      zoomCamera(ports.clock),
      about(ports.clock),
      ports_(ports),
      parts_(std::make_unique<Parts>(ports, *this)) {}

Station::~Station() = default;

void Station::startAtLogin() {
    parts_->loginLogic.Form_Load();
}

void Station::startAtMainForm() {
    buildPaths(values, ports_.folders);
    readStoredAddress(values, ports_.files);
    showMainForm();
}

void Station::showMainForm() {
    parts_->mainForm.Form_Load();
    gui.show();
}

std::vector<Form*> Station::forms() {
    return {&gui, &login, &controlPanel, &zoomCamera, &about};
}

const speedP2PVFH* Station::navigator() const {
    return parts_->mainForm.navigator();
}

const GPS* Station::gps() const {
    return parts_->mainForm.gps();
}

const SensorMapBuilder* Station::sensorMap() const {
    return parts_->mainForm.sensorMap();
}

const AntiStuck* Station::antiStuck() const {
    return parts_->mainForm.antiStuck();
}

ConsoleRooms& Station::console() {
    return parts_->console;
}

}  // namespace quorrin
