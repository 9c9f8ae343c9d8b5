// What the station tells of its makers. An installation that is somebody else's changes it here.
#pragma once

namespace quorrin {

constexpr const char* kMakerWebPage = "https://quorrin.example/";

// The list on the page of frmAbout that slides in, line by line.
constexpr const char* kDesignTeam[] = {
    "Quorrin Station",
    "Control and navigation",
    "Sound and imaging",
    "Operator's console",
    "Built and tested by the Quorrin team",
};

}  // namespace quorrin
