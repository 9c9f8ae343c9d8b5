// What the station does with the frames of the multimedia link.
//
// PowerFrame keeps that link alive, starts the session on the eleventh frame, and measures (see power.h).
// ImageFrame asks for the next frame after the work on this one is done: the chain sets its own pace.
// SoundFrame hands the robot's sound to whoever listens. Compressing, announcing, archiving, sending and
// playing are hooks; an empty one is skipped.
#pragma once

#include <functional>

#include "robotlink/power.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/lamp_controls.h"
#include "session/record/link_values.h"
#include "session/record/mode_values.h"
#include "session/record/multimedia_controls.h"
#include "session/record/power_controls.h"
#include "session/record/power_values.h"
#include "session/record/remote_values.h"

namespace quorrin {

void onPowerFrame(const LinkProperties& frame, LinkValues& link, ModeValues& mode, PowerValues& power,
                  PowerControls& controls, LampControls& lamps, const PowerHooks& hooks);

struct ImageHooks {
    std::function<void()> encodeVideoFrame;
    std::function<void()> announceVideoFrame;  // may yield: other events can run inside it
    std::function<void()> encodeCaptureFrame;  // while tmrCatchPhoto is enabled
};

// A client that is silent gets one frame in twelve: eleven events wait, of which the eleventh resets, and
// the twelfth sends.
void onImageFrame(CameraValues& camera, MultimediaControls& controls, const ImageHooks& hooks,
                  QuorrinSDK& robotTI);

struct SoundHooks {
    // Compresses and sends one buffer to the remote listener; sets the stream's Recording before.
    std::function<Long(Long address, Long length)> recordSendWave;
    // Hands the buffer of robotSoundAddress and robotSoundLength to the playback ring.
    std::function<void()> queueRobotSound;
    bool listeningToRobot = false;  // the operator's listening is on
};

void onSoundFrame(const LinkProperties& frame, const RemoteValues& remote, VoiceValues& voice,
                  MultimediaControls& controls, const SoundHooks& hooks);

}  // namespace quorrin
