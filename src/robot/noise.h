// Random numbers from a seed, the same on every machine: only integer steps, sums and exact scalings.
#pragma once

#include <cstdint>

namespace quorrin {

class Noise {
  public:
    explicit Noise(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ULL + 0x632BE59BD9B4E019ULL) {}

    std::uint64_t bits() {
        state_ += 0x9E3779B97F4A7C15ULL;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    // 0 up to but excluding 1.
    double uniform() { return static_cast<double>(bits() >> 11) * 0x1p-53; }

    // Close to normal with standard deviation 1, never beyond 3.47: the sum of four even draws.
    double gauss() {
        const std::uint64_t b = bits();
        const double sum = static_cast<double>(b & 0xFFFF) + static_cast<double>(b >> 16 & 0xFFFF) +
                           static_cast<double>(b >> 32 & 0xFFFF) + static_cast<double>(b >> 48);
        return (sum / 65535.0 - 2.0) * 1.7320508;
    }

  private:
    std::uint64_t state_;
};

}  // namespace quorrin
