#include "console/music_choice.h"

namespace quorrin {

void bindMusicChoice(SoundControls& controls) {
    controls.txtMusicName.onChange = [&controls] {
        controls.tbaMusicPlay.setEnabled(!controls.txtMusicName.text().empty());
        controls.tbaMusicStop.setEnabled(false);
    };
}

}  // namespace quorrin
