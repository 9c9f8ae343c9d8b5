// What the client's window says at a moment: tiles, texts, levels, and what can be used. Made from the desk
// alone; it writes nothing. Whoever shows it decides nothing.
//
// Texts that came from the station are shown as far as they are plain characters, and cut to kWordLength.
//
// Tones of the link's age: a station that runs reports at least every 5.1 s, so that RemoteLink::kLateMs of
// silence warn and kLostMs are bad. Latency warns from kSlowMs on: by then a hand on the keys notices it.
#pragma once

#include <array>
#include <string>

#include "base/glance.h"
#include "client/client_desk.h"

namespace quorrin {

constexpr std::int64_t kLostMs = 20'000;
constexpr double kSlowMs = 150;
constexpr std::size_t kWordLength = 12;

enum class ModePicture { none, idle, wandering, joystick };

struct ClientFace {
    Glance mode;
    ModePicture modePicture = ModePicture::none;
    Glance holder;
    Glance person;
    Glance position;
    Glance linkAge;
    Glance roundTrip;
    std::array<Glance, kRemoteChannels.size()> channels;

    bool started = false;  // connected, or trying to be
    std::string connectCaption;
    std::string releaseText;  // what the robot does when it is let go
    std::string drivingText;  // what the keys do now
    std::string stickText;

    bool canDrive = false;  // the command connection stands: mode key, sliders, switch
    bool canRelease = false;

    DriveFields levels;
    std::string gasText;
    std::string steeringText;
    double gas = 0;       // 0 to 1
    double steering = 0;  // -1, full left, to 1
    bool brake = false;
};

// `arrowsElsewhere`: the arrow keys belong to a slider at the moment.
ClientFace faceOf(const ClientDesk& desk, bool arrowsElsewhere);

// As far as it can be shown; "..." for what is too long.
std::string shown(const std::string& fromStation);

}  // namespace quorrin
