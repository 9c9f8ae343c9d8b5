// Message boxes that are answered at once: from a queue of prepared answers, else with "no" where they ask
// yes or no, and "ok" otherwise.
//
// A prepared answer belongs to the next box that asks; a box with only an OK button takes none.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/message_box.h"

namespace quorrin {

// "ok", "yes" or "no"
const char* boxAnswerText(BoxAnswer answer);

class ScriptedBoxes : public MessageBoxes {
  public:
    BoxAnswer show(const std::string& text, const std::string& title, BoxButtons buttons) override;

    void prepareAnswer(BoxAnswer answer) { answers_.push_back(answer); }

    // A box was shown and answered.
    std::function<void(const std::string& text, const std::string& title, BoxAnswer answer)> onShow;

  private:
    std::deque<BoxAnswer> answers_;
};

}  // namespace quorrin
