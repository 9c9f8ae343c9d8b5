// The site's floor plan: a big picture behind a viewport with two scroll bars, and an overview. Twips.
//
// Nothing here knows where the robot is. The viewport has its designed size until a view tells the real one.
#pragma once

#include <cstdint>
#include <string>

#include "base/area.h"
#include "platform/files.h"
#include "session/record/map_controls.h"

namespace quorrin {

// The scroll bars move the big picture.
void bindFloorPlan(MapControls& controls);

// Loads "office.bmp" and "office_s.bmp" of the folder and gives the scroll bars the big picture's travel
// behind the viewport. A picture that is not there stays empty, and the scroll bars then have no travel.
void loadFloorPlan(MapControls& controls, const std::string& folder, Files& files);

// A view tells where the viewport is and how large: the scroll bars' travel follows.
void viewportResized(MapControls& controls, const Area& viewport);

// The largest viewport that leaves a plan room to be scrolled, but for a plan that is very small; all zero
// without a plan.
struct ViewportLimit {
    std::int32_t width = 0;
    std::int32_t height = 0;
};
ViewportLimit largestViewport(const MapControls& controls);

// The part of the plan that the viewport shows, in fractions of the plan's width and height.
struct PlanPart {
    double left = 0;
    double top = 0;
    double width = 1;
    double height = 1;
};
PlanPart seenPart(const MapControls& controls);

// Where a scroll bar goes to when the plan is dragged so many pixels from where it was grabbed, the bar then
// standing at `from`; and when the wheel is turned, in eighths of a degree.
std::int32_t draggedTo(const Slider& bar, std::int32_t from, int pixels);
std::int32_t wheeledTo(const Slider& bar, int eighths);

}  // namespace quorrin
