// Paints what is dirty in all windows at once, for a program that is about to hold still: delivers no input,
// no timer and no socket event.
#pragma once

namespace quorrin {

void paintDirtyWindows();

}  // namespace quorrin
