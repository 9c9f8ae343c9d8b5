// The six channels of a station as a client sees them: each is a TCP connection of its own to a fixed port.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quorrin {

enum class RemoteChannel { command, sensor, video, audio, sendVoice, tts };

// The command channel first: the station takes no other before it.
constexpr std::array<RemoteChannel, 6> kRemoteChannels = {RemoteChannel::command,   RemoteChannel::sensor,
                                                          RemoteChannel::video,     RemoteChannel::audio,
                                                          RemoteChannel::sendVoice, RemoteChannel::tts};

constexpr int portOf(RemoteChannel channel) {
    constexpr std::array<int, 6> kPorts = {7060, 7070, 7080, 7090, 7040, 7050};
    return kPorts[static_cast<std::size_t>(channel)];
}

// As scripts and messages name it.
constexpr std::string_view nameOf(RemoteChannel channel) {
    constexpr std::array<std::string_view, 6> kNames = {"command", "sensor", "video",
                                                        "audio",   "voice",  "speech"};
    return kNames[static_cast<std::size_t>(channel)];
}

inline std::optional<RemoteChannel> channelNamed(std::string_view name) {
    for (const RemoteChannel channel : kRemoteChannels) {
        if (nameOf(channel) == name) return channel;
    }
    return std::nullopt;
}

}  // namespace quorrin
