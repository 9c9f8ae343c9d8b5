#include <gtest/gtest.h>

#include "base/controls.h"

namespace quorrin {
namespace {

struct FocusMoves : testing::Test {
    Form form{"frm"};
    TextBox first{form, "first"};
    TextBox second{form, "second"};
    TextBox third{form, "third"};
    std::string story;

    void SetUp() override {
        for (TextBox* box : {&first, &second, &third}) {
            box->onGotFocus = [this, box] { story += "+" + box->name() + " "; };
            box->onLostFocus = [this, box] { story += "-" + box->name() + " "; };
        }
    }
};

TEST_F(FocusMoves, TheOldControlIsLeftBeforeTheNewOneGetsTheFocus) {
    form.moveFocus(first);
    form.moveFocus(second);
    EXPECT_EQ(story, "+first -first +second ");
    EXPECT_EQ(form.focused(), &second);
}

TEST_F(FocusMoves, ALeaveHandlerMayKeepTheFocus) {
    form.moveFocus(first);
    first.onLostFocus = [this] { form.stayFocused(); };
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &first);
    EXPECT_EQ(story, "+first ");
}

TEST_F(FocusMoves, AMoveInsideALeaveHandlerStands) {
    form.moveFocus(first);
    first.onLostFocus = [this] { form.moveFocus(third); };
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &third);
    EXPECT_EQ(story, "+first +third ");
}

TEST_F(FocusMoves, ANestedMoveToTheSameControlGivesTheFocusOnce) {
    form.moveFocus(first);
    first.onLostFocus = [this] { form.moveFocus(second); };
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &second);
    EXPECT_EQ(story, "+first +second ");
}

}  // namespace
}  // namespace quorrin
