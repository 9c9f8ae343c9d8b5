// The main form's controls of sound: talk and listen keys, the broadcast of a file, the mouth timer.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct SoundControls {
    SoundControls(Form& form, Clock& clock)
        : cmdTalk(form, "cmdTalk", "Talk to Robot"),
          cmdListen(form, "cmdListen", "Start Listening"),
          tmrVoice(form, "tmrVoice", clock, 300),
          tmrMouth(form, "tmrMouth", clock, 300),
          txtMusicName(form, "txtMusicName"),
          btnOpenMusic(form, "btnOpenMusic"),
          tbaMusicPlay(form, "tbaMusic.Play", "Play"),
          tbaMusicStop(form, "tbaMusic.Stop", "Stop"),
          cmdPlayWav(form, "cmdPlayWav", "Play Wav") {}

    CommandButton cmdTalk;    // held down to talk
    CommandButton cmdListen;  // caption is the state
    Timer tmrVoice;
    Timer tmrMouth;
    TextBox txtMusicName;  // full path
    CommandButton btnOpenMusic;
    ToolbarKey tbaMusicPlay;
    ToolbarKey tbaMusicStop;
    CommandButton cmdPlayWav;
};

}  // namespace quorrin
