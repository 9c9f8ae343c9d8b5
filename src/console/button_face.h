// Where caption, icon and focus rectangle of a button stand.
//
// Units are logical pixels in the button's own coordinates. Caption and icon stand in the middle as one
// group; the icon is left or right of the caption, or above it. What does not fit narrows the caption. A
// pressed face stands one unit to the right and down. A pure function; measuring text is the view's business.
#pragma once

#include <cstdint>

#include "console/nine_slice.h"

namespace quorrin {

// Values of a button's `IconAlign`; any other number counts as left.
constexpr std::int32_t kIconLeft = 0;
constexpr std::int32_t kIconRight = 1;
constexpr std::int32_t kIconCentre = 2;

constexpr int kPressedOffset = 1;
constexpr int kFocusInset = 2;
constexpr int kFaceMargin = 8;  // between the button's side and its face
constexpr int kIconGap = 6;     // between icon and caption

struct FaceSize {
    int width = 0;
    int height = 0;
};

struct ButtonFace {
    SliceRect lbl;        // the caption; as wide as it may be drawn
    SliceRect imgButton;  // the icon; empty without one
    SliceRect focus;      // the focus rectangle
};

// `caption` and `icon` are the sizes that they want; a side of 0 means there is none.
ButtonFace buttonFace(FaceSize control, FaceSize caption, FaceSize icon, std::int32_t iconAlign,
                      bool pressed);

// The size at which caption and icon fit without being narrowed.
FaceSize faceSizeHint(FaceSize caption, FaceSize icon, std::int32_t iconAlign);

}  // namespace quorrin
