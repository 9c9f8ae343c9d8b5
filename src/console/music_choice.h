// Which of the two music keys may be used: with a file chosen "Play", without one neither.
#pragma once

#include "session/record/sound_controls.h"

namespace quorrin {

void bindMusicChoice(SoundControls& controls);

}  // namespace quorrin
