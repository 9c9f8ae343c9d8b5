// What the operator does to the control panel's window with mouse and keys.
#include "desktop/panel_window_bench.h"

namespace quorrin {
namespace {

TEST_F(PanelWindow, TheOperatorDragsItByItsBody) {
    open();
    form.moveTo(1500, 1500);
    QWidget& ground = body();
    cursor = {120, 110};
    mouse(QEvent::MouseButtonPress, ground, ground.mapFromGlobal(cursor), Qt::LeftButton, Qt::LeftButton);
    EXPECT_TRUE(station.console().controlPanel().drag().windowDragging());
    for (int step = 1; step <= 3; ++step) {
        cursor += QPoint(10, 5);
        mouse(QEvent::MouseMove, ground, ground.mapFromGlobal(cursor), Qt::NoButton, Qt::LeftButton);
        EXPECT_EQ(window.pos(), QPoint(100 + 10 * step, 100 + 5 * step));
    }
    const QSize size = window.size();
    mouse(QEvent::MouseButtonRelease, ground, ground.mapFromGlobal(cursor), Qt::LeftButton, Qt::NoButton);
    cursor += QPoint(50, 50);
    mouse(QEvent::MouseMove, ground, ground.mapFromGlobal(cursor), Qt::NoButton, Qt::NoButton);
    EXPECT_EQ(window.pos(), QPoint(130, 115));
    EXPECT_EQ(window.size(), size);
    EXPECT_EQ(form.area(), twips(window.frameGeometry()));
}

TEST_F(PanelWindow, TheRightButtonDragsNothing) {
    open();
    mouse(QEvent::MouseButtonPress, body(), {5, 5}, Qt::RightButton, Qt::RightButton);
    EXPECT_FALSE(station.console().controlPanel().drag().windowDragging());
}

TEST_F(PanelWindow, ADragByALabelIsADragByTheBody) {
    open();
    QLabel& label = *window.findChildren<QLabel*>().first();
    mouse(QEvent::MouseButtonPress, label, {2, 2}, Qt::LeftButton, Qt::LeftButton);
    EXPECT_TRUE(station.console().controlPanel().drag().windowDragging());
}

TEST_F(PanelWindow, TheOperatorHoldsATurnButton) {
    open();
    QTest::mousePress(&widget("cmdTurnRight"), Qt::LeftButton);
    settle();
    EXPECT_EQ(values.steeringLevel, 5500);
    clock.runFor(900);
    EXPECT_EQ(values.steeringLevel, 5500);
    QTest::mouseRelease(&widget("cmdTurnRight"), Qt::LeftButton);
    settle();
    EXPECT_EQ(values.steeringLevel, 5000);
    QTest::mousePress(&widget("cmdTurnLeft"), Qt::RightButton);
    settle();
    EXPECT_EQ(values.steeringLevel, 5000);
}

TEST_F(PanelWindow, TheOperatorDrivesWithTheArrowKeys) {
    open();
    EXPECT_EQ(window.focusWidget(), &body());
    keyDown(Qt::Key_Up);
    keyUp(Qt::Key_Up);
    keyDown(Qt::Key_Up);
    keyUp(Qt::Key_Up);
    EXPECT_EQ(values.gasLevel, 9000);
    EXPECT_EQ(widget<QScrollBar>("scrGas").value(), 9000);
    EXPECT_EQ(widget<ShadowLabel>("slbGasLevel").caption(), "9000");
    keyDown(Qt::Key_Left);
    // What auto-repeat sends while the key is held.
    for (int repeat = 0; repeat < 3; ++repeat) {
        keyUp(Qt::Key_Left, true);
        EXPECT_EQ(values.steeringLevel, 4500);
        keyDown(Qt::Key_Left, true);
    }
    EXPECT_EQ(widget<QScrollBar>("hscSteering").value(), 4500);
    keyUp(Qt::Key_Left);
    EXPECT_EQ(values.steeringLevel, 5000);
    keyDown(Qt::Key_Space);
    EXPECT_EQ(values.brakeLevel, 0);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(PanelWindow, AHeldKeyRepeatsItsAction) {
    open();
    keyDown(Qt::Key_Up);
    for (int repeat = 0; repeat < 4; ++repeat) {
        keyUp(Qt::Key_Up, true);
        keyDown(Qt::Key_Up, true);
    }
    EXPECT_EQ(values.gasLevel, 7500);
}

TEST_F(PanelWindow, AClickOnAButtonLeavesTheKeysWhereTheyWere) {
    open();
    QTest::mouseClick(&widget("cmdGasUp"), Qt::LeftButton);
    settle();
    EXPECT_EQ(values.gasLevel, 9500);
    EXPECT_EQ(window.focusWidget(), &body());
    keyDown(Qt::Key_Up);
    EXPECT_EQ(values.gasLevel, 9000);
}

TEST_F(PanelWindow, TabGoesThroughItAndComesBack) {
    open();
    std::vector<QString> visited;
    for (int step = 0; step < 40; ++step) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        settle();
        if (window.focusWidget() == &body()) break;
        visited.push_back(window.focusWidget()->objectName());
    }
    EXPECT_EQ(window.focusWidget(), &body());
    EXPECT_EQ(visited.size(), 19U);  // 13 buttons, 6 scroll bars
    EXPECT_EQ(visited.front(), "cmdGasUp");
    EXPECT_EQ(visited.back(), "cmdClose");
    EXPECT_EQ(values.gasLevel, 10000);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window.focusWidget()->objectName(), "cmdClose");
}

TEST_F(PanelWindow, AFocusedButtonHasSpaceAndTheBackgroundTheRest) {
    open();
    widget("cmdHeadUp").setFocus(Qt::TabFocusReason);
    settle();
    QTest::keyClick(&widget("cmdHeadUp"), Qt::Key_Space);
    settle();
    EXPECT_EQ(values.headCmdUpDown, 2100);
    EXPECT_EQ(values.brakeLevel, 10000);
    keyDown(Qt::Key_Up);
    EXPECT_EQ(values.gasLevel, 9500);
    EXPECT_EQ(window.focusWidget(), &widget("cmdHeadUp"));
}

TEST_F(PanelWindow, AFocusedScrollBarKeepsItsKeys) {
    open();
    widget("hscSteering").setFocus(Qt::TabFocusReason);
    keyDown(Qt::Key_Right);
    EXPECT_EQ(values.steeringLevel, 5001);
    EXPECT_EQ(station.console().controlPanel().selectedAction(), "");
}

TEST_F(PanelWindow, CombinationsWithControlStayShortcuts) {
    open();
    key(QEvent::KeyPress, Qt::Key_Up, false, Qt::ControlModifier);
    EXPECT_EQ(values.gasLevel, 10000);
    QKeyEvent plain(QEvent::ShortcutOverride, Qt::Key_Up, Qt::NoModifier);
    plain.ignore();
    QCoreApplication::sendEvent(&body(), &plain);
    EXPECT_TRUE(plain.isAccepted());
    QKeyEvent combined(QEvent::ShortcutOverride, Qt::Key_Q, Qt::ControlModifier);
    combined.ignore();
    QCoreApplication::sendEvent(&body(), &combined);
    EXPECT_FALSE(combined.isAccepted());
}

TEST_F(PanelWindow, AFunctionKeyIsLeftToShortcutsAndIsAKeyLikeAnyOtherWhereItIsNone) {
    open();
    QKeyEvent maybe(QEvent::ShortcutOverride, Qt::Key_F4, Qt::NoModifier);
    maybe.ignore();
    QCoreApplication::sendEvent(&body(), &maybe);
    EXPECT_FALSE(maybe.isAccepted());
    keyDown(Qt::Key_Up);
    keyDown(Qt::Key_F5);
    EXPECT_EQ(values.gasLevel, 9000);
}

}  // namespace
}  // namespace quorrin
