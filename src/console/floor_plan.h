// The site's floor plan: a big picture behind a viewport with two scroll bars, and an overview. Twips.
#pragma once

#include <string>

#include "base/area.h"
#include "platform/files.h"
#include "session/record/map_controls.h"

namespace quorrin {

// Size of the viewport.
constexpr int kViewportWidthTwips = 9000;
constexpr int kViewportHeightTwips = 6750;

// Loads "office.bmp" and "office_s.bmp" of the folder and gives the scroll bars the big picture's travel
// behind the viewport. A picture that is not there stays empty, and the scroll bars then have no travel.
void loadFloorPlan(MapControls& controls, const std::string& folder, Files& files);

}  // namespace quorrin
