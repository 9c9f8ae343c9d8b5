// Message boxes of a program without windows: a line on the terminal. Nobody is waited for: a box that asks
// is answered with no.
#pragma once

#include "platform/host/terminal.h"
#include "platform/message_box.h"

namespace quorrin {

class TerminalBoxes : public MessageBoxes {
  public:
    explicit TerminalBoxes(Terminal& terminal) : terminal_(terminal) {}

    BoxAnswer show(const std::string& text, const std::string& title, BoxButtons buttons) override {
        const std::string line = title.empty() ? text : title + ": " + text;
        terminal_.line(buttons == BoxButtons::yesNo ? line + " (answered no)" : line);
        return buttons == BoxButtons::yesNo ? BoxAnswer::no : BoxAnswer::ok;
    }

  private:
    Terminal& terminal_;
};

}  // namespace quorrin
