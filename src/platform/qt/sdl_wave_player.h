// The machine's loudspeaker, for short sounds. It is opened with the first sound; SDL plays on a thread of
// its own, so that a sound goes on while the station is held.
//
// A machine without a loudspeaker, and a WAV that cannot be played, are silence.
#pragma once

#include <cstdint>

#include "platform/wave_player.h"

namespace quorrin {

class SdlWavePlayer : public WavePlayer {
  public:
    SdlWavePlayer() = default;
    ~SdlWavePlayer() override;
    SdlWavePlayer(const SdlWavePlayer&) = delete;
    SdlWavePlayer& operator=(const SdlWavePlayer&) = delete;

    void play(const std::string& wav) override;

  private:
    void closeDevice();

    bool ready_ = false;
    std::uint32_t device_ = 0;  // 0: none is open
};

}  // namespace quorrin
