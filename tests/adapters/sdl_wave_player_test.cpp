// The real loudspeaker adapter, with SDL's loudspeaker that is a file.
#include "platform/qt/sdl_wave_player.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "sound/wave_resource.h"
#include "support/real_wait.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

struct SdlWavePlayerTest : testing::Test {
    SdlWavePlayerTest() {
        ::setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
        ::setenv("SDL_DISKAUDIODELAY", "0", 1);
    }
    ~SdlWavePlayerTest() override {
        for (const char* name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"})
            ::unsetenv(name);
    }
    std::string played() const {
        std::ostringstream all;
        all << std::ifstream(file, std::ios::binary).rdbuf();
        return all.str();
    }

    TempFolder folder;
    std::string file = folder.path() + "/loudspeaker";
    const std::string& ring = *waveResource(kRingTone);
};

TEST_F(SdlWavePlayerTest, TheRingComesOutOfTheLoudspeakerToItsLastSample) {
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    SdlWavePlayer player;
    player.play(ring);
    EXPECT_TRUE(waitForReal([&] { return played().find(ring.substr(44)) != std::string::npos; }));
}

TEST_F(SdlWavePlayerTest, WhatWasPlayingGivesWay) {
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    SdlWavePlayer player;
    player.play(ring);
    player.play(ring);
    // SDL numbers what is open from 2 on.
    EXPECT_EQ(SDL_GetAudioDeviceStatus(2), SDL_AUDIO_PLAYING);
    EXPECT_EQ(SDL_GetAudioDeviceStatus(3), SDL_AUDIO_STOPPED);
}

TEST_F(SdlWavePlayerTest, WithoutALoudspeakerNothingIsHeardAndNothingFails) {
    ::setenv("SDL_AUDIODRIVER", "none of that name", 1);
    SdlWavePlayer player;
    player.play(ring);
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    player.play("no sound at all");
    EXPECT_EQ(played(), "");
    // One that is plugged in later is found.
    player.play(ring);
    EXPECT_TRUE(waitForReal([&] { return played().find(ring.substr(44)) != std::string::npos; }));
}

}  // namespace
}  // namespace quorrin
