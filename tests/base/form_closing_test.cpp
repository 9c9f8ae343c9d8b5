#include <gtest/gtest.h>

#include "base/form.h"

namespace quorrin {
namespace {

TEST(FormClosing, AShownFormHidesWhenItsWindowIsClosed) {
    Form form("frmX");
    form.show();
    form.operatorClose();
    EXPECT_FALSE(form.shown());
}

TEST(FormClosing, AFormWithAnAnswerOfItsOwnRunsThatInstead) {
    Form form("frmX");
    int closings = 0;
    form.onClose = [&] { ++closings; };
    form.show();
    form.operatorClose();
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(form.shown());
}

TEST(FormClosing, AFormThatIsNotShownHasNoWindowToClose) {
    Form form("frmX");
    int closings = 0;
    form.onClose = [&] { ++closings; };
    form.operatorClose();
    EXPECT_EQ(closings, 0);
}

}  // namespace
}  // namespace quorrin
