// A window and its form: shown, closed, active, focus, place.

#include "desktop/window_bench.h"

namespace quorrin {
namespace {

struct WindowOfAForm : WindowBench {};

TEST_F(WindowOfAForm, IsShownAndHiddenWithIt) {
    EXPECT_TRUE(window.isVisible());
    form.hide();
    EXPECT_FALSE(window.isVisible());
    form.show();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(WindowOfAForm, IsNotClosedBeforeTheFormHasDecided) {
    int asked = 0;
    form.onClose = [&] { ++asked; };
    window.close();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(asked, 0);
    settle();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(WindowOfAForm, IsHiddenByClosingAFormThatSaysNothing) {
    window.close();
    settle();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowOfAForm, TellsTheFormWhenItBecomesTheActiveOne) {
    settle();
    std::vector<OperatorAct::Kind> done;
    form.onOperatorAct = [&](const OperatorAct& act) { done.push_back(act.kind); };
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window, &activated);
    settle();
    EXPECT_EQ(done, std::vector{OperatorAct::Kind::activate});
}

TEST_F(WindowOfAForm, TellsTheFormItsPlaceInTwips) {
    window.setGeometry(100, 50, 400, 300);
    EXPECT_EQ(form.area().width, window.frameGeometry().width() * 15);
    EXPECT_EQ(form.area().left, window.frameGeometry().x() * 15);
}

TEST_F(WindowOfAForm, GoesWhereTheFormIsMoved) {
    form.moveTo(1500, 750);
    EXPECT_EQ(window.pos(), QPoint(100, 50));
}

TEST_F(WindowOfAForm, GivesTheFocusToTheFormWhenTheOperatorTabs) {
    auto& name = put<QLineEdit>("txtName");
    auto& go = put<Command>("cmdGo");
    activate();
    ASSERT_TRUE(name.hasFocus());
    QTest::keyClick(&name, Qt::Key_Tab);
    EXPECT_TRUE(go.hasFocus());
    EXPECT_EQ(form.focused(), nullptr);
    settle();
    EXPECT_EQ(form.focused(), &form.cmdGo);
}

TEST_F(WindowOfAForm, FollowsAFormThatKeepsTheFocus) {
    auto& name = put<QLineEdit>("txtName");
    put<Command>("cmdGo");
    activate();
    form.moveFocus(form.txtName);
    form.txtName.onLostFocus = [this] { form.stayFocused(); };
    QTest::keyClick(&name, Qt::Key_Tab);
    settle();
    EXPECT_TRUE(name.hasFocus());
}

TEST_F(WindowOfAForm, SaysNothingOfAFocusThatMovesBecauseAWidgetWasDisabled) {
    auto& name = put<QLineEdit>("txtName");
    auto& go = put<Command>("cmdGo");
    activate();
    form.moveFocus(form.txtName);
    settle();
    name.setFocus();
    form.txtName.setEnabled(false);
    EXPECT_TRUE(go.hasFocus());
    EXPECT_EQ(acts.underWay(), 0);
}

TEST_F(WindowOfAForm, SaysNothingOfAFocusThatMovesBecauseAWidgetWasHidden) {
    auto& name = put<QLineEdit>("txtName");
    auto& go = put<Command>("cmdGo");
    activate();
    ASSERT_TRUE(name.hasFocus());
    form.txtName.setVisible(false);
    EXPECT_TRUE(go.hasFocus());
    EXPECT_EQ(acts.underWay(), 0);
}

TEST_F(WindowOfAForm, TabGoesInTheFormsOrder) {
    auto& go = put<Command>("cmdGo");
    auto& name = put<QLineEdit>("txtName");
    controls.orderTabs();
    activate();
    name.setFocus();
    QTest::keyClick(&name, Qt::Key_Tab);
    EXPECT_TRUE(go.hasFocus());
}

}  // namespace
}  // namespace quorrin
