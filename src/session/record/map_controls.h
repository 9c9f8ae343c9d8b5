// The main form's floor plan: a big picture behind a smaller viewport with two scroll bars, and an overview.
// Scroll values are twips.
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
          RoomPic(form, "RoomPic") {}

    Frame fraMapDisplay;
    Frame Frame1;  // the viewport
    Picture picRobotMap;
    Picture imgThumb;
    Slider HScroll1;
    Slider VScroll1;
    Picture RoomPic;
};

}  // namespace quorrin
