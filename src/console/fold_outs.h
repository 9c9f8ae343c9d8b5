// Opening and closing of the main form's two fold-out panels, and their state at start-up: both hidden.
#pragma once

#include "session/record/fold_out_controls.h"

namespace quorrin {

void bindFoldOuts(FoldOutControls& controls);
void hideFoldOuts(FoldOutControls& controls);

}  // namespace quorrin
