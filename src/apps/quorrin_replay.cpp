// quorrin-replay: one whole station in virtual time, driven by a script.
#include <cstdio>
#include <string>
#include <vector>

#include "replay/replay_program.h"

int main(int argc, char** argv) {
    return quorrin::replayProgram(std::vector<std::string>(argv + 1, argv + argc), stdout, stderr);
}
