// The six channels towards remote clients: their names and fixed ports, in the orders that matter.
#pragma once

#include <array>

namespace quorrin {

struct Channel {
    const char* name;
    int port;
};

constexpr Channel kCommandChannel = {"wskCommand", 7060};
constexpr Channel kSensorChannel = {"wskSensor", 7070};
constexpr Channel kVideoChannel = {"wskVideo", 7080};
constexpr Channel kAudioChannel = {"wskAudio", 7090};
constexpr Channel kSendVoiceChannel = {"wskSendVoice", 7040};
constexpr Channel kTtsChannel = {"wskTTS", 7050};

// In the order in which the listeners come up.
constexpr std::array<Channel, 6> kChannels = {kCommandChannel, kVideoChannel, kSensorChannel,
                                              kAudioChannel,   kTtsChannel,   kSendVoiceChannel};

}  // namespace quorrin
