#include "console/music_choice.h"

#include <gtest/gtest.h>

#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

struct MusicChoice : testing::Test {
    VirtualClock clock;
    Form form{"frmGUI"};
    SoundControls controls{form, clock};

    void SetUp() override { bindMusicChoice(controls); }
};

TEST_F(MusicChoice, AChosenFileEnablesPlayAlone) {
    controls.txtMusicName.setText("/music/a.wav");
    EXPECT_TRUE(controls.tbaMusicPlay.enabled());
    EXPECT_FALSE(controls.tbaMusicStop.enabled());
}

TEST_F(MusicChoice, AnEmptiedNameDisablesBoth) {
    controls.txtMusicName.setText("/music/a.wav");
    controls.txtMusicName.setText("");
    EXPECT_FALSE(controls.tbaMusicPlay.enabled());
    EXPECT_FALSE(controls.tbaMusicStop.enabled());
}

}  // namespace
}  // namespace quorrin
