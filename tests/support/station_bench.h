// A whole station on fakes, in virtual time, with one log of what it asked of the world: link operations
// ("myRobot.SuspendDrive 0"), programs ("start QuorrinGatewayTI", "close <title>", "no window <title>"),
// boxes
// ("box <text>"), web pages ("page <address>"), the end ("ended"), and the seams that a test has set with
// noteSeams(). Invented frames come in through the helpers; nothing else happens by itself.
#pragma once

#include <string>
#include <vector>

#include "base/program_error.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_joysticks.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_sockets.h"
#include "session/station.h"
#include "support/fake_link.h"
#include "support/fake_wave_player.h"

namespace quorrin {

struct StationBench {
    static constexpr const char* kMotionTitle = "Quorrin Gateway_MotionControl";
    static constexpr const char* kMultimediaTitle = "Quorrin Gateway_Multimedia";

    StationBench() : StationBench(ownClock) {}
    // Several stations may share one clock.
    explicit StationBench(VirtualClock& sharedClock)
        : clock(sharedClock),
          myRobot(log, "myRobot."),
          robotTI(log, "robotTI."),
          station({clock, files, programs, boxes, myRobot, robotTI,
                   Folders{"/app", "/windows", "/voice", "/programs"},
                   [this] {
                       log.push_back("ended");
                       ended = true;
                   },
                   [this](const std::string& address) { log.push_back("page " + address); }, &sticks,
                   &sockets, &wave}),
          values(station.values),
          gui(station.gui) {
        files.createFolder("/app");
        files.createFolder("/windows");
        files.put("/app/Quorrinsdk.ini",
                  "[servo1]\ninit=3900\n[servo2]\ninit=3650\n[servo3]\ninit=3400\n"
                  "[servo5]\ninit=3500\n[servo6]\ninit=3200\n");
        programs.onStart = [this](const std::string& name) { log.push_back("start " + name); };
        programs.onClose = [this](const std::string& title, bool found) {
            log.push_back((found ? "close " : "no window ") + title);
        };
        boxes.onShow = [this](const std::string& text, const std::string&, BoxAnswer) {
            log.push_back("box " + text);
        };
    }

    std::vector<std::string> take() {
        std::vector<std::string> taken;
        taken.swap(log);
        return taken;
    }

    // Runs `steps` and swallows the end of the program.
    template <typename Steps>
    void untilEnd(Steps steps) {
        try {
            steps();
        } catch (const ProgramEnd&) {
            ended = true;
        }
    }

    void sensorFrames(int count) {
        for (int i = 0; i < count; ++i) myRobot.SensorFrame.raise();
    }
    void powerFrames(int count) {
        for (int i = 0; i < count; ++i) robotTI.PowerFrame.raise();
    }
    // One period of the control tick.
    void tick(int count = 1) { clock.runFor(100 * count); }

    // Loaded, eleven power frames in: the tick runs, IDLE, wandering asked for.
    void startSession() {
        station.startAtMainForm();
        powerFrames(11);
    }
    // In "wondering" or "JOY" with the motion link up.
    void reachWondering() {
        startSession();
        tick(2);
        sensorFrames(11);
        tick(38);
    }
    void reachJoy() {
        startSession();
        values.requestWander = false;
        values.requestJoy = true;
        tick(1);
        sensorFrames(11);
        tick(39);
    }

    VirtualClock ownClock;
    VirtualClock& clock;
    std::vector<std::string> log;
    bool ended = false;
    MemoryFiles files;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    ScriptedJoysticks sticks;  // none is attached
    FakeLink myRobot;
    FakeLink robotTI;
    // Silent in the log; RemoteBench makes them tell.
    VirtualSockets sockets{clock};
    FakeWavePlayer wave;
    Station station;
    PublicValues& values;
    frmGUI& gui;
};

}  // namespace quorrin
