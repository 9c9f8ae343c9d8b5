#include "console/window_drag.h"

#include "base/checked_int.h"

namespace quorrin {

namespace {

class Busy {
  public:
    explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
    ~Busy() { flag_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    bool& flag_;
};

}  // namespace

void WindowDrag::leftDown(ScreenPlace cursor) {
    if (!form_.shown()) return;
    state_.windowDragging = true;
    state_.cursor = cursor;
    state_.window = form_.area();
}

void WindowDrag::moved(const std::function<ScreenPlace()>& readCursor) {
    if (!form_.shown() || !state_.windowDragging || busy_) return;
    const Busy busy(busy_);
    clock_.yield();
    const ScreenPlace cursor = readCursor();
    form_.moveTo(Long(state_.window.left) + Long(cursor.left) - Long(state_.cursor.left),
                 Long(state_.window.top) + Long(cursor.top) - Long(state_.cursor.top));
}

void WindowDrag::leftUp() {
    state_.windowDragging = false;
}

}  // namespace quorrin
