// Opening and closing of the main form's two fold-out panels, and their state at start-up: both hidden, each
// moved to its place over the form. Places in twips, within the form's window.
#pragma once

#include "base/area.h"
#include "session/record/fold_out_controls.h"

namespace quorrin {

// Left and top; how large a panel is, is its view's business.
constexpr Area kSettingPlace = {2400, 900, 0, 0};
constexpr Area kSensorPlace = {1200, 900, 0, 0};

void bindFoldOuts(FoldOutControls& controls);
void hideFoldOuts(FoldOutControls& controls);

// Only shows the engineering view: no key of the form opens it, and nothing else of the station changes.
void openSensor(FoldOutControls& controls);

}  // namespace quorrin
