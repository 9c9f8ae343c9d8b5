// The group of the floor plan, fraMapDisplay: the plan behind its viewport, and beside the title RoomPic, the
// plan that is built into the program and never changes. The overview of the site's plan is a widget of its
// own (map_overview.h), for wherever it fits.
#pragma once

#include "desktop/forms/placing.h"
#include "session/record/map_controls.h"

namespace quorrin {

// `map` are the controls of the form that `place` places.
Group* planGroup(Placing& place, MapControls& map);

}  // namespace quorrin
