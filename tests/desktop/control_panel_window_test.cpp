// The control panel's window: what it shows, how it lies, which widget is whose.
#include "desktop/panel_window_bench.h"

namespace quorrin {
namespace {

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
