// The places of the rooms that are not the session's own in its courses: sound, remote access, joystick,
// camera, the small forms. The composition sets what it has; an empty place is passed over.
#pragma once

#include <functional>
#include <string>

#include "robotlink/multimedia_intake.h"

namespace quorrin {

struct SessionSeams {
    // Main form load, in this order
    std::function<void()> createWaveStream;    // stream object with its codec, sound flags cleared
    std::function<void()> setUpJoystick;       // after the servos' start values
    std::function<void()> setUpSockets;        // six listeners
    std::function<void()> setUpLocalPlayback;  // wave devices

    // Frames of the multimedia link
    ImageHooks image;
    SoundHooks sound;

    // Status: one record to one element of wskSensor; and the change of the running count
    std::function<void(int element, const std::string& record)> sendStatus;
    std::function<void()> changeCountChanged;

    // Closing
    std::function<void()> closeAbout;
    std::function<void()> closeZoomCamera;
    std::function<void()> dropRemoteSession;
    std::function<void()> closeAllSockets;
};

// Calls a place that may be empty.
template <typename... Args>
void callSeam(const std::function<void(Args...)>& seam, const Args&... args) {
    if (seam) seam(args...);
}

}  // namespace quorrin
