#include "platform/virtual/scripted_boxes.h"

namespace quorrin {

const char* boxAnswerText(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::yes:
            return "yes";
        case BoxAnswer::no:
            return "no";
        case BoxAnswer::ok:
            break;
    }
    return "ok";
}

BoxAnswer ScriptedBoxes::show(const std::string& text, const std::string& title, BoxButtons buttons) {
    BoxAnswer answer = BoxAnswer::ok;
    if (buttons == BoxButtons::yesNo) {
        answer = BoxAnswer::no;
        if (!answers_.empty()) {
            answer = answers_.front();
            answers_.pop_front();
        }
    }
    if (onShow) onShow(text, title, answer);
    return answer;
}

}  // namespace quorrin
