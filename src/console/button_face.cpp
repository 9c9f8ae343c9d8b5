#include "console/button_face.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr int kFaceMarginVertical = 5;

bool isThere(FaceSize size) {
    return size.width > 0 && size.height > 0;
}

int centred(int whole, int part) {
    return (whole - part) / 2;
}

// The caption under the icon, both in the middle.
void stack(ButtonFace& face, FaceSize control, FaceSize caption, FaceSize icon) {
    const int room = std::max(0, control.width - 2 * kFaceMargin);
    const int width = std::min(caption.width, room);
    const int group = icon.height + (isThere(caption) ? kIconGap / 2 + caption.height : 0);
    const int top = centred(control.height, group);
    face.imgButton = {centred(control.width, icon.width), top, icon.width, icon.height};
    face.lbl = {centred(control.width, width), top + group - caption.height, width, caption.height};
}

// Side by side, as one group in the middle.
void line(ButtonFace& face, FaceSize control, FaceSize caption, FaceSize icon, bool iconRight) {
    const int beside = isThere(icon) ? icon.width + (isThere(caption) ? kIconGap : 0) : 0;
    const int room = std::max(0, control.width - 2 * kFaceMargin - beside);
    const int width = std::min(caption.width, room);
    const int left = centred(control.width, width + beside);
    face.lbl = {iconRight ? left : left + beside, centred(control.height, caption.height), width,
                caption.height};
    if (isThere(icon)) {
        face.imgButton = {iconRight ? left + width + beside - icon.width : left,
                          centred(control.height, icon.height), icon.width, icon.height};
    }
}

}  // namespace

ButtonFace buttonFace(FaceSize control, FaceSize caption, FaceSize icon, std::int32_t iconAlign,
                      bool pressed) {
    ButtonFace face;
    if (isThere(icon) && iconAlign == kIconCentre) {
        stack(face, control, caption, icon);
    } else {
        line(face, control, caption, icon, iconAlign == kIconRight);
    }
    if (pressed) {
        for (SliceRect* piece : {&face.lbl, &face.imgButton}) {
            piece->left += kPressedOffset;
            piece->top += kPressedOffset;
        }
    }
    face.focus = {kFocusInset, kFocusInset, std::max(0, control.width - 2 * kFocusInset),
                  std::max(0, control.height - 2 * kFocusInset)};
    return face;
}

FaceSize faceSizeHint(FaceSize caption, FaceSize icon, std::int32_t iconAlign) {
    FaceSize inside = caption;
    if (isThere(icon) && iconAlign == kIconCentre) {
        inside.width = std::max(caption.width, icon.width);
        inside.height = icon.height + (isThere(caption) ? kIconGap / 2 + caption.height : 0);
    } else if (isThere(icon)) {
        inside.width = icon.width + (isThere(caption) ? kIconGap + caption.width : 0);
        inside.height = std::max(caption.height, icon.height);
    }
    return {inside.width + 2 * kFaceMargin, inside.height + 2 * kFaceMarginVertical};
}

}  // namespace quorrin
