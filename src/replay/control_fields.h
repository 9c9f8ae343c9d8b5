// How a control prints in a watch: text boxes, captions and drop-downs as texts, sliders, check boxes (0 or
// 1), lamps and pictures as numbers, options and timers as true or false.
#pragma once

#include "base/controls.h"

namespace quorrin {

void appendControl(std::string& out, const Control& control);

// "button", "text", "label", "check", "option", "slider", "dropdown", "list", "lamp", "picture", "frame",
// "timer".
const char* controlKind(const Control& control);

}  // namespace quorrin
