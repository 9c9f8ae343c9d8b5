// A picture in another size, by interpolation between four neighbours. Pure.
//
// Positions and weights are 32-bit floats. A source position is the target's index times
// (source side - 1) / target side: the minus one keeps the neighbour of the last position inside, and its
// absence on the target's side leaves the last source row and column unreached. Rows are counted as they
// stand in memory, from the bottom. Each of the two blends (down, then across) is rounded to a whole number,
// ties to the even neighbour. A picture of the same size is copied as it is. Nothing outside the source is
// ever read: a source one pixel wide or high is its own neighbour.
#pragma once

#include "imaging/bitmap.h"

namespace quorrin {

void resample(const Bitmap& source, Bitmap& target);

}  // namespace quorrin
