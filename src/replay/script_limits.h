// Limits of a replay script.
#pragma once

#include <cstdint>

namespace quorrin {

// The latest time that a line may have, in milliseconds: more than thirty years.
constexpr std::int64_t kLastTimeMs = 1'000'000'000'000;

}  // namespace quorrin
