// The station's own loudspeaker for sounds that it has in memory.
#pragma once

#include <string>

namespace quorrin {

class WavePlayer {
  public:
    virtual ~WavePlayer() = default;
    // Begins to play a whole WAV file and returns at once; what was playing gives way. Without a loudspeaker
    // nothing is heard, and that is no error.
    virtual void play(const std::string& wav) = 0;
};

}  // namespace quorrin
