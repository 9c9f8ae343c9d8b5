// Dragging a window without a title bar by its body, the same routine for each such form.
//
// All forms share one drag: the state of the press belongs to whichever window was pressed last. A move lets
// pending events run before it reads the cursor, so that the window goes to where the cursor is by then; a
// move that comes up inside another one of the same form does nothing. A form that is not shown is not
// dragged.
//
// Not here: holding the mouse between press and release, which is the window system's business.
//
// Twips, on the screen, for cursor and window alike (1/15 of a logical pixel).
#pragma once

#include <cstdint>
#include <functional>

#include "base/form.h"
#include "platform/clock.h"

namespace quorrin {

struct ScreenPlace {
    std::int32_t left = 0;
    std::int32_t top = 0;
};

// One for all forms of a station.
struct DragState {
    bool windowDragging = false;
    ScreenPlace cursor;  // at the press
    Area window;         // at the press
};

class WindowDrag {
  public:
    // All must outlive it.
    WindowDrag(Clock& clock, Form& form, DragState& state) : clock_(clock), form_(form), state_(state) {}

    // The left button on the form's body: down, moved while it is down, up.
    void leftDown(ScreenPlace cursor);
    void moved(const std::function<ScreenPlace()>& readCursor);
    void leftUp();

    bool windowDragging() const { return state_.windowDragging; }

  private:
    Clock& clock_;
    Form& form_;
    DragState& state_;
    bool busy_ = false;
};

}  // namespace quorrin
