// The program's own sounds, by number, as whole WAV files. Made by sums, not read from files.
//
//   101  the ring of a call: 8-bit mono at 11025 Hz, 10,038 bytes, 907 ms
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

constexpr int kRingTone = 101;

// Null for a number that there is not.
const std::string* waveResource(int number);

// How long an 8-bit mono WAV of 11025 Hz plays, rounded up to whole milliseconds.
std::int64_t waveLengthMs(const std::string& wav);

}  // namespace quorrin
