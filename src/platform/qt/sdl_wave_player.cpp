#include "platform/qt/sdl_wave_player.h"

#include <SDL.h>

#include <memory>

namespace quorrin {

SdlWavePlayer::~SdlWavePlayer() {
    closeDevice();
    if (ready_) SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

void SdlWavePlayer::closeDevice() {
    if (device_ != 0) SDL_CloseAudioDevice(device_);
    device_ = 0;
}

void SdlWavePlayer::play(const std::string& wav) {
    closeDevice();
    SDL_SetMainReady();
    SDL_SetHintWithPriority(SDL_HINT_NO_SIGNAL_HANDLERS, "1", SDL_HINT_OVERRIDE);
    // Without a loudspeaker it is tried again with the next sound: one may have been plugged in.
    if (!ready_) ready_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    if (!ready_) return;
    SDL_AudioSpec spec{};
    Uint8* samples = nullptr;
    Uint32 length = 0;
    SDL_RWops* memory = SDL_RWFromConstMem(wav.data(), static_cast<int>(wav.size()));
    if (SDL_LoadWAV_RW(memory, 1, &spec, &samples, &length) == nullptr) return;
    const std::unique_ptr<Uint8, decltype(&SDL_FreeWAV)> owned(samples, SDL_FreeWAV);
    // Closing waits for what is in the machine's hands, some of these at a time.
    spec.samples = 512;
    device_ = SDL_OpenAudioDevice(nullptr, 0, &spec, nullptr, 0);
    if (device_ == 0) return;
    SDL_QueueAudio(device_, samples, length);
    SDL_PauseAudioDevice(device_, 0);
}

}  // namespace quorrin
