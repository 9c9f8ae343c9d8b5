// Opening and closing of the main form's two fold-out panels, and their state at start-up: both hidden, each
// moved to its place over the form. Places in twips, within the form's window.
//
// No key of the form opens the engineering view: who sits in front of the screen opens it by the window's own
// means, which touch nothing here.
#pragma once

#include "base/area.h"
#include "session/record/fold_out_controls.h"

namespace quorrin {

// Left and top; how large a panel is, is its view's business.
constexpr Area kSettingPlace = {2400, 900, 0, 0};
constexpr Area kSensorPlace = {1200, 900, 0, 0};

void bindFoldOuts(FoldOutControls& controls);
void hideFoldOuts(FoldOutControls& controls);

}  // namespace quorrin
