// Runs a shell command in the project's root, without input; for tests of scripts. Owns nothing.
#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace quorrin::tree {

struct Outcome {
    int status = -1;     // as wait() tells it; 0 is success
    std::string output;  // both streams
};

inline Outcome runCommand(const std::string& command) {
    Outcome outcome;
    FILE* pipe = popen(("cd '" QUORRIN_SOURCE_DIR "' && { " + command + "; } 2>&1 < /dev/null").c_str(), "r");
    if (pipe == nullptr) return outcome;
    std::array<char, 4096> piece{};
    while (const std::size_t got = fread(piece.data(), 1, piece.size(), pipe)) {
        outcome.output.append(piece.data(), got);
    }
    outcome.status = pclose(pipe);
    return outcome;
}

}  // namespace quorrin::tree
