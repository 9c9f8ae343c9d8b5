// What remote access works on. References only; the session owns it all and outlives the rooms that use it.
#pragma once

#include <functional>

#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/sockets.h"
#include "platform/wave_player.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/main_form_values.h"
#include "session/record/network_controls.h"
#include "session/record/public_values.h"
#include "session/record/session_controls.h"
#include "session/record/sound_controls.h"

namespace quorrin {

struct RemoteParts {
    Clock& clock;
    Sockets& sockets;
    MessageBoxes& boxes;
    QuorrinSDK& robotTI;
    WavePlayer* player;  // null: the ring is silent
    PublicValues& values;
    NetworkControls& network;
    SessionControls& session;
    const SoundControls& sound;
    MainFormValues& form;
    std::function<bool()> panelShowing;
    // The voice object goes on compressing until it is told.
    std::function<void()> stopVoiceRecording;
};

// Pictures of the indicators, by number in the form's image list.
namespace indicator {
constexpr int kCallAccepted = 1;  // imgStatus
constexpr int kCallEnded = 3;
constexpr int kRemoteEnabled = 4;  // imgNetwork
constexpr int kRemoteDisabled = 5;
constexpr int kSoundOut = 8;  // outLight
constexpr int kNoSoundOut = 6;
constexpr int kVoiceIn = 11;  // inLight
constexpr int kNoVoiceIn = 9;
}  // namespace indicator

}  // namespace quorrin
