// A script that cannot be used: which line, and why.
//
// Deliberately no std::exception: it passes through the station's handlers like a power cut, and nothing that
// skips failed steps swallows it.
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

struct ScriptError {
    std::int64_t line = 0;  // counted from 1; 0 when it is not about one line
    std::string reason;
};

}  // namespace quorrin
