// What pictures are copied through: a context has one bitmap selected, and a copy goes from context to
// context.
//
// A handle of this room is a plain pointer, and null where there is none: `Bitmap*` for a bitmap,
// `DeviceContext*` for a context. Neither owns what it names. Places are counted in pixels from the picture's
// upper left corner, x to the right and y down.
#pragma once

#include <cstdint>
#include <utility>

#include "imaging/bitmap.h"

namespace quorrin {

class DeviceContext {
  public:
    // Returns what was selected before, for putting it back.
    Bitmap* select(Bitmap* bitmap) { return std::exchange(selected_, bitmap); }
    Bitmap* selected() const { return selected_; }

  private:
    Bitmap* selected_ = nullptr;
};

// How source and target are joined, bit by bit. The third byte of a code is a table of the result: bit 0 for
// both clear, bit 1 for the target's set, bit 2 for the source's set, bit 3 for both set, and the same again
// for a set bit of a pattern. There is no pattern here, so a code whose two halves differ is none of these.
enum class RasterOperation : std::uint32_t {
    blackness = 0x00000042,
    notSourceErase = 0x001100A6,
    notSourceCopy = 0x00330008,
    sourceErase = 0x00440328,
    targetInvert = 0x00550009,
    sourceInvert = 0x00660046,
    sourceAnd = 0x008800C6,
    mergePaint = 0x00BB0226,
    sourceCopy = 0x00CC0020,
    sourcePaint = 0x00EE0086,
    whiteness = 0x00FF0062,
};

// Where a copy takes place.
struct BlitArea {
    std::int32_t targetX = 0;
    std::int32_t targetY = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t sourceX = 0;
    std::int32_t sourceY = 0;
};

// Copies what lies inside both bitmaps; the rest of the target stays. False, with nothing copied, where a
// context has no bitmap selected or the operation needs a pattern.
bool bitBlt(DeviceContext& target, DeviceContext& source, const BlitArea& area, RasterOperation operation);

}  // namespace quorrin
