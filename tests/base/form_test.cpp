#include "base/form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/controls.h"
#include "base/program_error.h"

namespace quorrin {
namespace {

using Log = std::vector<std::string>;

class FormTest : public ::testing::Test {
  protected:
    FormTest() {
        for (TextBox* box : {&first, &second, &third}) {
            box->onGotFocus = [this, box] { log.push_back("got " + box->name()); };
            box->onLostFocus = [this, box] { log.push_back("lost " + box->name()); };
        }
        form.onFocusMoved = [this] { ++moves; };
    }
    Form form{"frmTest"};
    TextBox first{form, "first"};
    TextBox second{form, "second"};
    TextBox third{form, "third"};
    Log log;
    int moves = 0;
};

TEST_F(FormTest, IsModalOnlyWhileItIsShownSo) {
    form.showModal();
    EXPECT_TRUE(form.shown());
    EXPECT_TRUE(form.modal());
    form.hide();
    EXPECT_FALSE(form.modal());
    form.show();
    EXPECT_FALSE(form.modal());
    form.showModal();
    EXPECT_FALSE(form.modal());
}

TEST_F(FormTest, FindsItsControlsByName) {
    EXPECT_EQ(form.find("second"), &second);
    EXPECT_EQ(form.find("Second"), nullptr);
    EXPECT_EQ(form.find(""), nullptr);
    EXPECT_EQ(form.name(), "frmTest");
}

TEST_F(FormTest, ListsItsControlsInTheOrderOfDefinition) {
    EXPECT_EQ(form.controls(), (std::vector<Control*>{&first, &second, &third}));
}

TEST_F(FormTest, RefusesTwoControlsOfOneName) {
    EXPECT_THROW(TextBox(form, "first"), ProgramError);
}

TEST_F(FormTest, BecomesTheActiveOneEachTimeItIsShown) {
    int shownChanges = 0;
    int activations = 0;
    form.onShownChanged = [&] { ++shownChanges; };
    form.onActivate = [&] { ++activations; };
    EXPECT_FALSE(form.shown());
    form.activate();  // not while hidden
    EXPECT_EQ(activations, 0);
    form.show();
    form.show();
    EXPECT_EQ(shownChanges, 1);
    EXPECT_EQ(activations, 2);
    form.hide();
    form.hide();
    EXPECT_EQ(shownChanges, 2);
    EXPECT_FALSE(form.shown());
}

TEST_F(FormTest, LeavesOneBoxBeforeTheNextGetsTheFocus) {
    form.moveFocus(first);
    form.moveFocus(second);
    EXPECT_EQ(log, (Log{"got first", "lost first", "got second"}));
    EXPECT_EQ(form.focused(), &second);
    EXPECT_EQ(moves, 2);
}

TEST_F(FormTest, DoesNotMoveTheFocusToWhereItIs) {
    form.moveFocus(first);
    form.moveFocus(first);
    EXPECT_EQ(log, (Log{"got first"}));
    EXPECT_EQ(moves, 1);
}

TEST_F(FormTest, LetsALeaveHandlerKeepTheFocus) {
    form.moveFocus(first);
    first.onLostFocus = [this] { form.stayFocused(); };
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &first);
    EXPECT_EQ(log, (Log{"got first"}));
    first.onLostFocus = {};
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &second);
}

TEST_F(FormTest, LetsALeaveHandlersOwnMoveStand) {
    form.moveFocus(first);
    first.onLostFocus = [this] { form.moveFocus(third); };
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &third);
    EXPECT_EQ(log, (Log{"got first", "got third"}));
}

TEST_F(FormTest, LetsTheFocusBePassedOnByTheBoxThatGetsIt) {
    second.onGotFocus = [this] {
        log.push_back("got second");
        form.moveFocus(third);
    };
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &third);
    EXPECT_EQ(log, (Log{"got second", "lost second", "got third"}));
}

TEST_F(FormTest, IgnoresAStayThatNoLeavingAskedFor) {
    form.stayFocused();
    form.moveFocus(first);
    form.moveFocus(second);
    EXPECT_EQ(form.focused(), &second);
}

}  // namespace
}  // namespace quorrin
