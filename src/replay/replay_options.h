// The command line of quorrin-replay.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/civil_time.h"

namespace quorrin {

struct ReplayOptions {
    bool help = false;
    bool version = false;
    bool names = false;              // list what a script may name
    std::optional<std::string> app;  // as given
    CivilTime date{2026, 11, 20, 9, 0, 0};
    std::optional<std::string> script;  // "-" is standard input

    // The simulated robot in the place of frames.
    std::optional<std::string> robotSite;
    std::uint64_t seed = 1;
    std::optional<std::string> scenario;
    double minutes = 0;
    bool report = false;
};

// The arguments without the program's name. A wrong one is told in `complaint`, which is else empty.
ReplayOptions parseReplayOptions(const std::vector<std::string>& arguments, std::string& complaint);

// "2026-11-20 09:00:00"; empty for anything else, impossible dates included.
std::optional<CivilTime> parseDate(const std::string& text);

// What --help prints.
const char* replayHelp();

}  // namespace quorrin
