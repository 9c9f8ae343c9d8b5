// Real seconds for a replayed wander of ten virtual hours, whose script tools/make-wander-script writes. The
// output goes to /dev/null; reading the script is part of the time.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "figure.h"
#include "replay/replay_program.h"
#include "support/temp_folder.h"

int main() {
    constexpr double kAim_s = 6.0;
    const quorrin::TempFolder folder;
    const std::string script = folder.path() + "/wander.jsonl";
    const std::string write = "'" QUORRIN_SOURCE_DIR "/tools/make-wander-script' 36000 > '" + script + "'";
    if (std::system(write.c_str()) != 0) return 1;  // NOLINT: a fixed command of our own
    std::FILE* nowhere = std::fopen("/dev/null", "w");
    if (nowhere == nullptr) return 1;
    const auto begin = std::chrono::steady_clock::now();
    const int status = quorrin::replayProgram({script}, nowhere, stderr);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    std::fclose(nowhere);
    if (status != 0) return 1;
    quorrin::bench::printFigure("replay of 36000 virtual seconds", taken.count(), "s", kAim_s);
    return 0;
}
