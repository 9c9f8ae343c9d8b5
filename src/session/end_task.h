// Closes a gateway program by its window title. Does not wait for the program to end.
#pragma once

#include <string>

#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/programs.h"
#include "session/record/path_values.h"

namespace quorrin {

// False, silently, when no window has exactly that title; false with a message when the window went away
// while it was looked at. Otherwise the window is told to close and pending events run before this returns
// true, so other handlers may run inside it. Leaves the title in gatewayWindowTitle.
bool EndTask(const std::string& windowTitle, PathValues& paths, Programs& programs, MessageBoxes& boxes,
             Clock& clock);

}  // namespace quorrin
