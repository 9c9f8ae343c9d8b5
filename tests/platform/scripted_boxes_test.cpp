#include "platform/virtual/scripted_boxes.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

TEST(ScriptedBoxes, AnswersNoWhereABoxAsksAndOkElse) {
    ScriptedBoxes boxes;
    EXPECT_EQ(boxes.show("sure?", "", BoxButtons::yesNo), BoxAnswer::no);
    EXPECT_EQ(boxes.show("done", "", BoxButtons::ok), BoxAnswer::ok);
}

TEST(ScriptedBoxes, GivesPreparedAnswersInOrderToTheBoxesThatAsk) {
    ScriptedBoxes boxes;
    boxes.prepareAnswer(BoxAnswer::yes);
    boxes.prepareAnswer(BoxAnswer::no);
    EXPECT_EQ(boxes.show("done", "", BoxButtons::ok), BoxAnswer::ok);
    EXPECT_EQ(boxes.show("first?", "", BoxButtons::yesNo), BoxAnswer::yes);
    EXPECT_EQ(boxes.show("second?", "", BoxButtons::yesNo), BoxAnswer::no);
    EXPECT_EQ(boxes.show("third?", "", BoxButtons::yesNo), BoxAnswer::no);
}

TEST(ScriptedBoxes, TellsTextTitleAndAnswer) {
    ScriptedBoxes boxes;
    std::string told;
    boxes.onShow = [&](const std::string& text, const std::string& title, BoxAnswer answer) {
        told = text + "|" + title + "|" + boxAnswerText(answer);
    };
    boxes.show("No valid IP-address", "Login", BoxButtons::ok);
    EXPECT_EQ(told, "No valid IP-address|Login|ok");
    boxes.prepareAnswer(BoxAnswer::yes);
    boxes.show("a", "b", BoxButtons::yesNo);
    EXPECT_EQ(told, "a|b|yes");
    boxes.show("a", "b", BoxButtons::yesNo);
    EXPECT_EQ(told, "a|b|no");
}

}  // namespace
}  // namespace quorrin
