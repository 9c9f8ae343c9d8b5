// What an operator reads in the live views: legend, menu, keys, and the picture in words.
//
// No state. Key texts are key sequences as a keyboard names them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "console/grid_picture.h"

namespace quorrin {

enum class LegendMark : std::uint8_t {
    obstacle,
    robot,
    infraredRay,
    sonarRay,
    blockedSector,
    freeSector,
    densityLimit,
    goalSector,
    heading,
    target
};

struct LegendEntry {
    LegendMark mark;
    const char* words;
};

const std::array<LegendEntry, 10>& gridLegend();

// What can be done with the picture of the grid.
enum class GridDeed : std::uint8_t { follow, showAll, nearer, farther };

struct DeedWords {
    GridDeed deed;
    const char* caption;
    const char* key;
};

const std::array<DeedWords, 4>& gridDeeds();

struct LiveViewWords {
    const char* title;
    const char* gridName;
    const char* gridTip;
    const char* ownWindow;  // caption of the key that detaches the views
    const char* ownWindowTip;
    const char* moveKeys;   // key sequence that does either
    const char* back;       // caption of the key that brings them back
    const char* elsewhere;  // what stands in the views' place meanwhile
    const char* oneMetre;
    const char* now;  // ends of a chart's time axis
    const char* aMinuteAgo;
};

const LiveViewWords& liveViewWords();

// The picture for those who do not see it.
std::string gridSpoken(const GridPicture& picture, const char* guidance);

}  // namespace quorrin
