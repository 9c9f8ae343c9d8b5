// What a fuzz target demands: says what does not hold and ends the program, which the fuzzer counts as a
// finding.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace quorrin::fuzz {

inline void expect(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

}  // namespace quorrin::fuzz
