// The station's loudspeaker in a replay: prints that a sound was asked for.
#pragma once

#include <string>

#include "platform/wave_player.h"
#include "replay/output.h"

namespace quorrin {

class ScriptedWave : public WavePlayer {
  public:
    explicit ScriptedWave(Output& output) : output_(output) {}
    void play(const std::string& /*wav*/) override {
        output_.begin();
        output_.addText("wave", "sndPlaySoundA");
        output_.end();
    }

  private:
    Output& output_;
};

}  // namespace quorrin
