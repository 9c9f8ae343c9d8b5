// The login window, typed into with real keys.
#include <gtest/gtest.h>

#include <QLineEdit>

#include "desktop/station_window_bench.h"

namespace quorrin {
namespace {

struct LoginWindowTest : testing::Test {
    LoginWindowTest() {
        bench.station.startAtLogin();
        bench.window("frmLogin")->activateWindow();
        bench.settle();
    }
    std::string shown() const {
        std::string all;
        for (int i = 0; i < 4; ++i)
            all += "[" + bench.widget<QLineEdit>("frmLogin", field(i))->text().toStdString() + "]";
        return all;
    }
    static std::string field(int i) { return "txt_ip(" + std::to_string(i) + ")"; }
    QWidget* ok() const { return bench.widget("frmLogin", "cmdOK"); }

    StationWindowBench bench;
    frmLogin& form = bench.station.login;
};

TEST_F(LoginWindowTest, ComesUpWithTheAddressAndTheFirstFieldMarked) {
    EXPECT_TRUE(bench.window("frmLogin")->isVisible());
    EXPECT_EQ(shown(), "[127][127][  0][1]");
    const auto* first = bench.widget<QLineEdit>("frmLogin", "txt_ip(0)");
    EXPECT_TRUE(first->hasFocus());
    EXPECT_EQ(first->selectedText(), "127");
}

TEST_F(LoginWindowTest, AnAddressIsTypedWithTheKeyboardOnly) {
    bench.type("192");
    bench.type("168");
    bench.type("1.");
    bench.type("20");
    EXPECT_EQ(shown(), "[192][168][1][20]");
}

TEST_F(LoginWindowTest, AnAddressThatIsTypedInOneGoFindsItsFields) {
    bench.type("1921681.20");
    EXPECT_EQ(shown(), "[192][168][1][20]");
}

TEST_F(LoginWindowTest, EnterGoesToTheNextFieldAndInTheLastOnePressesOk) {
    bench.press(Qt::Key_Return);
    bench.press(Qt::Key_Return);
    bench.press(Qt::Key_Return);
    EXPECT_TRUE(bench.widget("frmLogin", "txt_ip(3)")->hasFocus());
    EXPECT_TRUE(form.shown());
    bench.press(Qt::Key_Return);
    EXPECT_FALSE(form.shown());
    EXPECT_TRUE(bench.gui.shown());
}

TEST_F(LoginWindowTest, EnterInThePortPressesOk) {
    bench.widget("frmLogin", "txtRobotPort")->setFocus(Qt::TabFocusReason);
    bench.settle();
    bench.press(Qt::Key_Enter);
    EXPECT_TRUE(bench.gui.shown());
}

TEST_F(LoginWindowTest, TheTypedAddressIsStored) {
    bench.type("1921681.20");
    bench.press(Qt::Key_Return);
    EXPECT_EQ(bench.values.robotIp, "192.168.1.20");
}

TEST_F(LoginWindowTest, OkIsDisabledUntilThePortIsValid) {
    auto* const port = bench.widget<QLineEdit>("frmLogin", "txtRobotPort");
    port->setFocus(Qt::TabFocusReason);
    port->selectAll();
    form.cmdOK.setEnabled(false);
    form.Timer2.setRunning(true);
    bench.press(Qt::Key_Delete);
    bench.clock.runFor(100);
    EXPECT_FALSE(ok()->isEnabled());
    bench.type("10x01");
    bench.clock.runFor(100);
    EXPECT_EQ(port->text(), "1001");
    EXPECT_TRUE(ok()->isEnabled());
}

TEST_F(LoginWindowTest, AFieldAbove255Becomes0WhenItIsLeft) {
    bench.type("256");
    EXPECT_EQ(shown(), "[0][127][  0][1]");
}

TEST_F(LoginWindowTest, BackspaceInAnEmptyFieldGoesBack) {
    bench.press(Qt::Key_Tab);
    ASSERT_TRUE(bench.widget("frmLogin", "txt_ip(1)")->hasFocus());
    bench.press(Qt::Key_Backspace);
    EXPECT_TRUE(bench.widget("frmLogin", "txt_ip(1)")->hasFocus());
    bench.press(Qt::Key_Backspace);
    EXPECT_TRUE(bench.widget("frmLogin", "txt_ip(1)")->hasFocus()) << "an empty field cannot be left";
}

TEST_F(LoginWindowTest, AnEmptyFieldKeepsTheFocusAgainstTheMouse) {
    bench.press(Qt::Key_Delete);
    QTest::mousePress(ok(), Qt::LeftButton);
    bench.settle();
    QTest::mouseRelease(ok(), Qt::LeftButton);
    bench.settle();
    EXPECT_TRUE(bench.widget("frmLogin", "txt_ip(0)")->hasFocus());
    EXPECT_FALSE(bench.gui.shown());
}

TEST_F(LoginWindowTest, AnInvalidFieldIsToldInABoxAndGetsTheFocus) {
    form.Timer2.setRunning(true);
    bench.press(Qt::Key_Delete);
    bench.press(Qt::Key_Tab);
    ASSERT_EQ(form.txt_ip(0).tag(), "False");
    bench.take();
    bench.clock.runFor(100);
    EXPECT_EQ(bench.take(), std::vector<std::string>{"box No valid IP-address"});
    EXPECT_TRUE(bench.widget("frmLogin", "txt_ip(0)")->hasFocus());
    EXPECT_FALSE(ok()->isEnabled());
}

TEST_F(LoginWindowTest, ADotThatIsClickedSendsOnToTheNextField) {
    QTest::mouseClick(bench.widget("frmLogin", "txt_ipdot(1)"), Qt::LeftButton);
    bench.settle();
    EXPECT_TRUE(bench.widget("frmLogin", "txt_ip(2)")->hasFocus());
}

TEST_F(LoginWindowTest, CancelEndsTheProgram) {
    QTest::mouseClick(bench.widget("frmLogin", "cmdCancel"), Qt::LeftButton);
    bench.untilEnd([this] { bench.settle(); });
    EXPECT_TRUE(bench.ended);
}

TEST_F(LoginWindowTest, EscapeIsCancel) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    bench.untilEnd([this] { bench.settle(); });
    EXPECT_TRUE(bench.ended);
}

TEST_F(LoginWindowTest, ClosingItEndsTheProgram) {
    bench.window("frmLogin")->close();
    bench.untilEnd([this] { bench.settle(); });
    EXPECT_TRUE(bench.ended);
}

TEST_F(LoginWindowTest, EveryWidgetThatCanBeUsedHasANameAndATip) {
    for (const Control* control : form.controls()) {
        const QWidget* widget = bench.widget("frmLogin", control->name());
        if (widget == nullptr) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->name();
        EXPECT_FALSE(widget->toolTip().isEmpty()) << control->name();
    }
}

}  // namespace
}  // namespace quorrin
