// The control panel's window with real widgets, in a whole station on virtual time.
#include "desktop/forms/control_panel_window.h"

#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QTest>

#include "desktop/binding/key_codes.h"
#include "desktop/binding/twips.h"
#include "session/console_rooms.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

class PanelWindow : public testing::Test, protected StationBench {
  protected:
    void SetUp() override {
        station.startAtMainForm();
        window.bodyDrag().cursorPosition = [this] { return cursor; };
    }
    void settle() {
        QCoreApplication::processEvents();
        clock.runFor(0);
    }
    void open() {
        gui.cmdShowControlPanel.operatorClick();
        window.activateWindow();
        settle();
    }
    template <typename Kind = QWidget>
    Kind& widget(const char* name) {
        auto* const found = window.findChild<Kind*>(QString::fromLatin1(name));
        if (found == nullptr) throw ProgramError(std::string("no widget ") + name);
        return *found;
    }
    void key(QEvent::Type type, int qtKey, bool autoRepeat = false,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(type, qtKey, modifiers, QString(), autoRepeat);
        QWidget* const focused = window.focusWidget();
        QCoreApplication::sendEvent(focused != nullptr ? focused : &window, &event);
        settle();
    }
    void keyDown(int qtKey, bool autoRepeat = false) { key(QEvent::KeyPress, qtKey, autoRepeat); }
    void keyUp(int qtKey, bool autoRepeat = false) { key(QEvent::KeyRelease, qtKey, autoRepeat); }
    void mouse(QEvent::Type type, QWidget& on, const QPoint& at, Qt::MouseButton button,
               Qt::MouseButtons held) {
        QMouseEvent event(type, at, on.mapToGlobal(at), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&on, &event);
        settle();
    }
    QWidget& body() { return widget("Picture1"); }

    frmControlPanel& form = station.controlPanel;
    OperatorActs acts{clock};
    ControlPanelWindow window{form, station.console().controlPanel().drag(), acts};
    QPoint cursor;
};

TEST_F(PanelWindow, HasAWidgetForEachControlUnderItsName) {
    for (const Control* control : form.controls()) {
        if (dynamic_cast<const Timer*>(control) != nullptr) continue;
        EXPECT_NE(window.findChild<QWidget*>(QString::fromStdString(control->name())), nullptr)
            << control->name();
    }
}

TEST_F(PanelWindow, ReadsTheLabelsThatItIsToldAndNoOthers) {
    QStringList read;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->text().endsWith(u':')) read << label->text();
    }
    read.sort();
    QStringList told{"Neck & Eye:", "Wheel:", "Left:",   "Right:", "Left:",  "Right:",
                     "Brake:",      "Up:",    "Gas Up:", "Mouth:", "Close:", "Open:"};
    told.sort();
    EXPECT_EQ(read, told) << read.join(u' ').toStdString();
}

TEST_F(PanelWindow, IsAFramelessToolWindowOnTopThreeQuartersOpaque) {
    EXPECT_FALSE(window.isVisible());
    open();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(window.windowType(), Qt::Tool);
    EXPECT_FALSE(window.isModal());
    EXPECT_NEAR(window.windowOpacity(), 192.0 / 255.0, 0.005);
}

TEST_F(PanelWindow, OpensWhereTheFormWasPlaced) {
    gui.setArea({1500, 3000, 0, 0});
    gui.fraMapDisplay.setArea({150, 300, 600, 900});
    open();
    EXPECT_EQ(window.pos(), QPoint(130, 250));
    EXPECT_EQ(form.area(), twips(window.frameGeometry()));
}

TEST_F(PanelWindow, HidesWithTheForm) {
    open();
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_FALSE(window.isVisible());
    open();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(PanelWindow, ClosedByTheWindowSystemAsksTheForm) {
    open();
    QCloseEvent closing;
    QCoreApplication::sendEvent(&window, &closing);
    EXPECT_TRUE(window.isVisible());
    settle();
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
}

TEST_F(PanelWindow, ComingBackToItTakesTheGasAway) {
    open();
    form.scrGas.operatorMove(3000);
    QWidget another;
    another.show();
    another.activateWindow();
    settle();
    EXPECT_EQ(values.gasLevel, 3000);
    window.activateWindow();
    settle();
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(PanelWindow, APressOnAnInactivePanelActivatesItBeforeItSteers) {
    open();
    form.scrGas.operatorMove(3000);
    QWidget another;
    another.show();
    another.activateWindow();
    settle();
    ASSERT_FALSE(window.isActiveWindow());
    QTest::mousePress(&widget("cmdTurnLeft"), Qt::LeftButton);
    settle();
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.steeringLevel, 4500);
    QTest::mouseRelease(&widget("cmdTurnLeft"), Qt::LeftButton);
    settle();
    EXPECT_EQ(values.steeringLevel, 5000);
}

// Stories

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

TEST_F(PanelWindow, TheBrakesBarHasItsMaximumAtTheTopAllOthersTheirMinimum) {
    for (const char* name : {"scrGas", "scrHeadUD", "scrMouthUD"}) {
        EXPECT_FALSE(widget<QScrollBar>(name).invertedAppearance()) << name;
    }
    EXPECT_TRUE(widget<QScrollBar>("scrBrake").invertedAppearance());
    // A standing slider has its maximum at the top unless it is inverted.
    EXPECT_TRUE(widget<QSlider>("sldUD").invertedAppearance());
    EXPECT_FALSE(widget<QScrollBar>("hscHeadLR").invertedAppearance());
}

TEST_F(PanelWindow, TheArrowUpMovesAStandingBarsHandleUp) {
    open();
    form.scrBrake.operatorMove(5000);
    form.scrHeadUD.operatorMove(1000);
    QTest::keyClick(&widget("scrBrake"), Qt::Key_Up);
    QTest::keyClick(&widget("scrHeadUD"), Qt::Key_Up);
    settle();
    EXPECT_EQ(values.brakeLevel, 5001);
    EXPECT_EQ(values.headCmdUpDown, 999);
}

TEST_F(PanelWindow, ScrollBarsWriteTheirControlsAndFollowThem) {
    open();
    widget<QScrollBar>("scrMouthUD").setValue(700);
    settle();
    EXPECT_EQ(values.mouthCmd, 3350);
    form.hscHeadLR.setValue(3000);
    EXPECT_EQ(widget<QScrollBar>("hscHeadLR").value(), 3000);
    EXPECT_EQ(widget<QSlider>("sldLR").value(), 3000);
}

TEST_F(PanelWindow, TheIndicatorsAreOnlyLookedAt) {
    open();
    for (const char* name : {"sldLR", "sldUD"}) {
        EXPECT_EQ(widget(name).focusPolicy(), Qt::NoFocus);
        EXPECT_TRUE(widget(name).testAttribute(Qt::WA_TransparentForMouseEvents));
    }
}

TEST_F(PanelWindow, ItsCloseKeyUnloadsTheForm) {
    open();
    QTest::mouseClick(&widget("cmdClose"), Qt::LeftButton);
    settle();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
}

TEST_F(PanelWindow, FitsASmallScreenWithAFontOneThirdLarger) {
    open();
    QFont larger = window.font();
    larger.setPointSizeF(larger.pointSizeF() * 4 / 3);
    window.setFont(larger);
    for (int pass = 0; pass < 5; ++pass) settle();
    EXPECT_LE(window.width(), 800);
    EXPECT_LE(window.height(), 480);
    for (QWidget* child : window.findChildren<QWidget*>()) {
        EXPECT_GE(child->width(), child->minimumSizeHint().width()) << child->objectName().toStdString();
    }
}

TEST(KeyCodes, AreTheFormsNumbers) {
    const auto code = [](int key) { return keyCode(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier)); };
    EXPECT_EQ(code(Qt::Key_Up), 38);
    EXPECT_EQ(code(Qt::Key_Down), 40);
    EXPECT_EQ(code(Qt::Key_Left), 37);
    EXPECT_EQ(code(Qt::Key_Right), 39);
    EXPECT_EQ(code(Qt::Key_Space), 32);
    EXPECT_EQ(code(Qt::Key_Home), 36);
    EXPECT_EQ(code(Qt::Key_End), 35);
    EXPECT_EQ(code(Qt::Key_Delete), 46);
    EXPECT_EQ(code(Qt::Key_PageDown), 34);
    EXPECT_EQ(code(Qt::Key_Backspace), 8);
    EXPECT_EQ(code(Qt::Key_A), 65);
    // Signs whose letters would be the number of an arrow are none.
    for (const int sign : {Qt::Key_Percent, Qt::Key_Ampersand, Qt::Key_Apostrophe, Qt::Key_ParenLeft,
                           Qt::Key_Period, Qt::Key_NumberSign})
        EXPECT_EQ(code(sign), 255);
}

}  // namespace
}  // namespace quorrin
