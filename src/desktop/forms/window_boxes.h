// Message boxes as windows. Timers, frames and the rest of the queue go on while one stands.
//
// A box that asks is answered with no when it is closed without an answer. What ends the program while a box
// stands comes out of show().
#pragma once

#include <functional>

#include "platform/clock.h"
#include "platform/message_box.h"

namespace quorrin {

class WindowBoxes : public MessageBoxes {
  public:
    // `clock` is the one that the station runs on. `afterwards` throws what has ended the program in between.
    WindowBoxes(Clock& clock, std::function<void()> afterwards);

    BoxAnswer show(const std::string& text, const std::string& title, BoxButtons buttons) override;

  private:
    Clock& clock_;
    std::function<void()> afterwards_;
};

// A box alone, for a program that does not run yet or no more.
class PlainBoxes : public MessageBoxes {
  public:
    BoxAnswer show(const std::string& text, const std::string& title, BoxButtons buttons) override;
};

}  // namespace quorrin
