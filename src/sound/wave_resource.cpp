#include "sound/wave_resource.h"

#include <string_view>

namespace quorrin {

namespace {

constexpr std::uint32_t kSamplesPerSecond = 11025;
constexpr std::uint32_t kHeaderBytes = 44;
constexpr std::uint32_t kRingBytes = 10038;

void appendNumber(std::string& out, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) out += static_cast<char>(value >> static_cast<unsigned>(8 * i) & 0xFFU);
}

std::string header(std::uint32_t samples) {
    std::string wav = "RIFF";
    appendNumber(wav, kHeaderBytes - 8 + samples, 4);
    wav += "WAVEfmt ";
    appendNumber(wav, 16, 4);
    appendNumber(wav, 1, 2);  // PCM
    appendNumber(wav, 1, 2);  // mono
    appendNumber(wav, kSamplesPerSecond, 4);
    appendNumber(wav, kSamplesPerSecond, 4);  // bytes a second
    appendNumber(wav, 1, 2);                  // bytes a sample
    appendNumber(wav, 8, 2);                  // bits a sample
    wav += "data";
    appendNumber(wav, samples, 4);
    return wav;
}

// Four strokes on two bells in turn, each a triangle wave that dies away. Whole numbers only, so that every
// machine makes the same bytes.
std::string ring() {
    constexpr std::uint32_t samples = kRingBytes - kHeaderBytes;
    constexpr std::uint32_t stroke = samples / 4;
    std::string wav = header(samples);
    for (std::uint32_t i = 0; i < samples; ++i) {
        const std::uint32_t within = i % stroke;
        const int period = (i / stroke) % 2 == 0 ? 12 : 15;
        const int phase = static_cast<int>(within) % period;
        const int half = period / 2;
        const int wave = (phase < half ? phase : period - phase) * 2 - half;  // -half to half
        const int loudness = 100 * static_cast<int>(stroke - within) / static_cast<int>(stroke);
        wav += static_cast<char>(128 + wave * loudness / (half + 1));
    }
    return wav;
}

}  // namespace

const std::string* waveResource(int number) {
    if (number != kRingTone) return nullptr;
    static const std::string tone = ring();
    return &tone;
}

std::int64_t waveLengthMs(const std::string& wav) {
    if (wav.size() <= kHeaderBytes) return 0;
    const auto samples = static_cast<std::int64_t>(wav.size() - kHeaderBytes);
    return (samples * 1000 + kSamplesPerSecond - 1) / kSamplesPerSecond;
}

}  // namespace quorrin
