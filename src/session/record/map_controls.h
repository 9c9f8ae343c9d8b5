// The main form's floor plan: a big picture behind a smaller viewport with two scroll bars, and an overview.
// Twips throughout.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct MapControls {
    explicit MapControls(Form& form)
        : fraMapDisplay(form, "fraMapDisplay", "Whole Layout Picture"),
          Frame1(form, "Frame1"),
          picRobotMap(form, "picRobotMap"),
          imgThumb(form, "imgThumb"),
          HScroll1(form, "HScroll1", 1, 1, 1),
          VScroll1(form, "VScroll1", 1, 1, 1),
          RoomPic(form, "RoomPic") {
        // Until a view tells how large the viewport really is.
        Frame1.setArea({0, 0, kDesignedViewportWidth, kDesignedViewportHeight});
    }

    static constexpr int kDesignedViewportWidth = 9000;
    static constexpr int kDesignedViewportHeight = 6750;

    Frame fraMapDisplay;
    Frame Frame1;  // the viewport
    Picture picRobotMap;
    Picture imgThumb;
    Slider HScroll1;
    Slider VScroll1;
    Picture RoomPic;
};

}  // namespace quorrin
