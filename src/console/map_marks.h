// Marks of the robot on the floor plan, and the plan's centring. Complete, and connected to nothing: how the
// robot's metres lie in the plan is not known to the station, so no position reaches the plan.
//
// x and y are plan coordinates in twips, 255 more than those of the picture.
#pragma once

#include "session/record/map_controls.h"

namespace quorrin {

// A red circle on the big plan in place of everything drawn on it.
void printBigPicture(MapControls& controls, double x, double y);
// A blue circle where the overview stands, on the big plan's layer too, in place of everything drawn on it.
void printthumbnailPicture(MapControls& controls, double x, double y);
// Scrolls so that the point is in the middle of the viewport, as far as the plan goes.
void setPictureCenter(MapControls& controls, double x, double y);

}  // namespace quorrin
