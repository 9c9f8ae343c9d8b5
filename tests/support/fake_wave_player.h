// A loudspeaker that only remembers what it was given.
#pragma once

#include <functional>
#include <string>

#include "platform/wave_player.h"

namespace quorrin {

class FakeWavePlayer : public WavePlayer {
  public:
    void play(const std::string& wav) override {
        last = wav;
        if (onPlay) onPlay();
    }
    std::string last;
    std::function<void()> onPlay;
};

}  // namespace quorrin
