// Virtual seconds in a real one with the simulated robot linked straight to the station, physics included:
// ten minutes in each shipped site.
#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>

#include "figure.h"
#include "replay/replay_program.h"

namespace {

// The report of a run, or an empty object when it failed.
nlohmann::json report(const std::string& site) {
    std::FILE* output = std::tmpfile();
    if (output == nullptr) return {};
    const int status = quorrin::replayProgram({"--robot", site, "--seed", "7", "--minutes", "10", "--report"},
                                              output, stderr);
    std::string text(static_cast<std::size_t>(std::ftell(output)), ' ');
    std::rewind(output);
    text.resize(std::fread(text.data(), 1, text.size(), output));
    std::fclose(output);
    return status == 0 ? nlohmann::json::parse(text) : nlohmann::json{};
}

}  // namespace

int main() {
    constexpr double kAim = 1000.0;
    for (const char* site : {"office", "corridor", "clutter", "hall"}) {
        const nlohmann::json run = report(site);
        if (!run.contains("speedup")) return 1;
        quorrin::bench::printFigure(std::string("closed loop, ") + site, run["speedup"].get<double>(),
                                    "virtual seconds per second", kAim);
    }
    return 0;
}
