// The rules of remote connections once more: which elements there are, who stands in the list, what the flags
// say. Slow and plain, for a whole station to be held against.
//
// Channels go by their place in kChannels; command, video and sensor are 0, 1 and 2.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "support/plain_receiver.h"

namespace quorrin::fuzz {

class PlainConnections {
  public:
    static constexpr int kLast = 32;
    enum class Element { none, connected, broken };

    // A call from that port; `answer` is what an operator who is asked says. True when it was taken.
    bool call(std::size_t channel, int port, bool answer) {
        if (channel == kCommand) {
            if (!enabled && !answer) return false;
            callAccepted = enabled = true;
        } else if (!callAccepted) {
            return false;
        }
        const auto free = std::find(elements[channel].begin() + 1, elements[channel].end(), Element::none);
        if (free == elements[channel].end()) return false;
        *free = Element::connected;
        if (channel == kVideo) videoThere = true;
        if (channel == kSensor) sensorThere = true;
        if (channel == kCommand) {
            const auto index = static_cast<std::size_t>(free - elements[channel].begin());
            entries_[index] = "10.0.0.5  [" + std::to_string(port) + "] - [7060]";
            lines.push_back(entries_[index]);
        }
        return true;
    }

    void hangUp(std::size_t channel, std::size_t index) {
        if (!connected(channel, index)) return;
        if (channel == kCommand) removeLinesOf(index);
        gone(channel);
        elements[channel][index] = Element::none;
    }

    // It stays in its place, and its line in the list.
    void fail(std::size_t channel, std::size_t index) {
        if (!connected(channel, index)) return;
        gone(channel);
        elements[channel][index] = Element::broken;
    }

    void read(std::size_t index, const std::string& bytes) {
        if (!connected(kCommand, index) || bytes.empty()) return;
        for (const std::string& payload : receiver_.read(bytes))
            if (payload.compare(0, 4, "Quit") == 0) drop();
    }

    void toggle() {
        enabled = !enabled;
        if (enabled) return;
        drop();
        callAccepted = false;
    }

    void silence() {
        if (callAccepted) drop();
        look();
    }

    // A tick of the supervision.
    void look() {
        const auto any = [this](std::size_t channel) {
            return std::count(elements[channel].begin(), elements[channel].end(), Element::connected) > 0;
        };
        if (any(kSensor)) sensorThere = true;
        if (any(kVideo)) videoThere = true;
    }

    bool connected(std::size_t channel, std::size_t index) const {
        return elements[channel].at(index) == Element::connected;
    }

    bool enabled = true;
    bool callAccepted = false;
    bool sensorThere = false;
    bool videoThere = false;
    std::vector<std::string> lines;
    std::array<std::array<Element, kLast + 1>, 6> elements{};  // the first of each is the listener

  private:
    static constexpr std::size_t kCommand = 0, kVideo = 1, kSensor = 2;

    void gone(std::size_t channel) {
        if (channel == kSensor) sensorThere = false;
        if (channel == kVideo) videoThere = false;
    }
    void removeLinesOf(std::size_t index) {
        lines.erase(std::remove(lines.begin(), lines.end(), entries_[index]), lines.end());
    }
    // By the number of lines that there were, whether their elements stand in those places or not.
    void drop() {
        videoThere = false;
        const std::size_t count = lines.size();
        for (std::size_t i = 1; i <= std::min<std::size_t>(count, kLast); ++i)
            if (elements[kCommand][i] != Element::none) removeLinesOf(i);
        for (auto& channel : elements) channel.fill(Element::none);
    }

    std::array<std::string, kLast + 1> entries_;
    PlainReceiver receiver_{FrameRule::equalLength, 4095};
};

}  // namespace quorrin::fuzz
