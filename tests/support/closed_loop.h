// A whole station and a simulated robot in one virtual time, linked straight. Begins as if the login had just
// handed over; the wander starts by itself.
#pragma once

#include <memory>

#include "base/program_error.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"
#include "robot/direct_link.h"
#include "session/station.h"
#include "support/robot_room.h"

namespace quorrin {

class ClosedLoop {
  public:
    explicit ClosedLoop(Site site, std::uint64_t seed = 1, std::vector<Fault> scenario = {})
        : robot(std::move(site), seed, std::move(scenario)), link(clock, robot, files) {
        files.createFolder("/app");
        files.createFolder("/windows");
        files.createFolder("/voice");
        files.put("/app/quorrin128.bmp", "face");
        programs.onStart = [this](const std::string& name) { link.programStarted(name); };
        programs.onClose = [this](const std::string& title, bool found) {
            if (found) link.windowClosed(title);
        };
        station = std::make_unique<Station>(StationPorts{clock,
                                                         files,
                                                         programs,
                                                         boxes,
                                                         link.myRobot(),
                                                         link.robotTI(),
                                                         {"/app", "/windows", "/voice", "/bin"},
                                                         [] { throw ProgramEnd{}; }});
        station->startAtMainForm();
    }

    void run(double seconds) { clock.runFor(static_cast<std::int64_t>(seconds * 1000)); }
    // Until the station's mode text is `text`; false when that takes longer.
    bool runUntilMode(const std::string& text, double atMost_s) {
        for (double t = 0; t < atMost_s; t += 0.1) {
            if (mode() == text) return true;
            run(0.1);
        }
        return mode() == text;
    }
    const std::string& mode() const { return station->gui.txtRobotStatus.text(); }
    const PublicValues& values() const { return station->values; }

    VirtualClock clock;
    MemoryFiles files;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    SimulatedRobot robot;
    DirectLink link;
    std::unique_ptr<Station> station;
};

}  // namespace quorrin
