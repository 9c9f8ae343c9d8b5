// What one station asks of its host. Everything referred to must outlive the station.
#pragma once

#include <functional>
#include <string>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/joysticks.h"
#include "platform/message_box.h"
#include "platform/programs.h"
#include "platform/sockets.h"
#include "platform/wave_player.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

struct StationPorts {
    Clock& clock;
    Files& files;
    Programs& programs;
    MessageBoxes& boxes;
    QuorrinSDK& myRobot;
    QuorrinSDK& robotTI;
    Folders folders;
    // Ends the program; should not return.
    std::function<void()> endProgram;
    // Opens a page in the operator's browser; an empty place opens nothing.
    std::function<void(const std::string& address)> openWebPage = {};
    // Without it no joystick is ever found.
    Joysticks* joysticks = nullptr;
    // Without sockets there is no remote access; without a player its ring is silent.
    Sockets* sockets = nullptr;
    WavePlayer* wavePlayer = nullptr;
};

}  // namespace quorrin
