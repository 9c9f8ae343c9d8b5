// Keys that are held in the client's window: pressed, repeated, let go, lost with the focus, and the same by
// mouse. What counts is what the station gets.
#include <gtest/gtest.h>

#include "client_window/remote_window_bench.h"

namespace quorrin {
namespace {

using HeldKeysTest = RemoteWindowBench;

TEST_F(HeldKeysTest, TheUpKeyDrivesAsLongAsItIsHeld) {
    openConnected();
    down(Qt::Key_Up);
    after(300);
    EXPECT_EQ(values().gasLevel, 7000);
    up(Qt::Key_Up);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_TRUE(values().manualPanelActive) << "still held";
}

TEST_F(HeldKeysTest, AKeysRepeatIsNeitherAReleaseNorAPress) {
    openConnected();
    down(Qt::Key_Up);
    for (int i = 0; i < 10; ++i) {
        repeat(Qt::Key_Up);
        after(20);
    }
    EXPECT_EQ(values().gasLevel, 7500) << "two steps of the driver's own in a fifth of a second";
}

TEST_F(HeldKeysTest, LeftAndRightSteer) {
    openConnected();
    down(Qt::Key_Left);
    after(100);
    EXPECT_EQ(values().steeringLevel, 4000);
    up(Qt::Key_Left);
    EXPECT_EQ(values().steeringLevel, 5000);
    down(Qt::Key_Right);
    after(100);
    EXPECT_EQ(values().steeringLevel, 6000);
}

TEST_F(HeldKeysTest, TheDownKeyBrakes) {
    openConnected();
    down(Qt::Key_Up);
    down(Qt::Key_Down);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_EQ(values().brakeLevel, 0);
    up(Qt::Key_Down);
    EXPECT_EQ(values().brakeLevel, 10000);
}

TEST_F(HeldKeysTest, LettersMoveHeadAndMouth) {
    openConnected();
    struct Move {
        int code;
        const Integer& value;
        int to;
    };
    const Move kMoves[] = {
        {Qt::Key_W, values().headCmdUpDown, 2100},    {Qt::Key_S, values().headCmdUpDown, 2000},
        {Qt::Key_A, values().headCmdLeftRight, 1900}, {Qt::Key_D, values().headCmdLeftRight, 2000},
        {Qt::Key_E, values().mouthCmd, 3500},         {Qt::Key_Q, values().mouthCmd, 3400},
    };
    for (const Move& move : kMoves) {
        down(move.code);
        EXPECT_EQ(move.value, move.to) << move.code;
        up(move.code);
    }
}

TEST_F(HeldKeysTest, AKeyWithControlOrAltIsSomebodyElses) {
    openConnected();
    QTest::keyPress(&focused(), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyPress(&focused(), Qt::Key_W, Qt::AltModifier);
    settle();
    EXPECT_FALSE(values().manualPanelActive);
}

TEST_F(HeldKeysTest, AnotherWindowInFrontMakesTheRobotStandStillHeld) {
    openConnected();
    down(Qt::Key_Up);
    after(300);
    QWidget other;
    other.show();
    activate(other);
    after(10);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_TRUE(values().manualPanelActive);
    after(2000);
    EXPECT_EQ(values().gasLevel, 10000);
}

TEST_F(HeldKeysTest, AKeyThatIsStillDownWhenTheFocusIsBackDrivesOnlyOncePressedAnew) {
    openConnected();
    down(Qt::Key_Up);
    QWidget other;
    other.show();
    activate(other);
    activate(*window);
    repeat(Qt::Key_Up);
    after(300);
    EXPECT_EQ(values().gasLevel, 10000);
    up(Qt::Key_Up);
    down(Qt::Key_Up);
    EXPECT_EQ(values().gasLevel, 8500);
}

// Key events with the window system's time, none of them marked as a repeat.
class UnmarkedRepeats : public RemoteWindowBench {
  protected:
    void send(QEvent::Type type, quint64 ms) {
        QKeyEvent event(type, Qt::Key_Up, Qt::NoModifier);
        event.setTimestamp(ms);
        QCoreApplication::sendEvent(&focused(), &event);
        settle();
    }
    void repeats() {
        for (const quint64 ms : {2000, 2040, 2080}) {
            send(QEvent::KeyRelease, ms);
            bench.run(KeyWatch::kReleaseMs - 1);
            send(QEvent::KeyPress, ms);
            bench.run(20);
        }
    }
};

TEST_F(UnmarkedRepeats, LetNoKeyGo) {
    openConnected();
    send(QEvent::KeyPress, 1000);
    repeats();
    after(500);
    EXPECT_EQ(values().gasLevel, 5500) << "six steps of the driver's own";
    send(QEvent::KeyRelease, 3000);
    after(KeyWatch::kReleaseMs);
    EXPECT_EQ(values().gasLevel, 10000);
}

TEST_F(UnmarkedRepeats, DoNotBringAForgottenKeyBack) {
    openConnected();
    send(QEvent::KeyPress, 1000);
    QWidget other;
    other.show();
    activate(other);
    activate(*window);
    repeats();
    EXPECT_EQ(values().gasLevel, 10000);
    send(QEvent::KeyRelease, 3000);
    send(QEvent::KeyPress, 3100);
    EXPECT_EQ(values().gasLevel, 8500);
}

TEST_F(UnmarkedRepeats, AreNotTheSecondOfTwoQuickPresses) {
    openConnected();
    send(QEvent::KeyPress, 1000);
    after(300);
    send(QEvent::KeyRelease, 1300);
    send(QEvent::KeyPress, 1305);
    EXPECT_EQ(values().gasLevel, 8500) << "begun anew";
}

TEST_F(HeldKeysTest, AClickOnASliderLeavesTheArrowKeysWithTheRobot) {
    openConnected();
    click("headLeftRight");
    down(Qt::Key_Up);
    EXPECT_EQ(values().gasLevel, 8500);
}

TEST_F(HeldKeysTest, AClickOnAButtonLeavesTheArrowKeysWithTheRobot) {
    openConnected();
    click("headAhead");
    ASSERT_TRUE(find("headAhead").hasFocus());
    down(Qt::Key_Up);
    EXPECT_EQ(values().gasLevel, 8500);
}

TEST_F(HeldKeysTest, ASliderThatTabReachedHasTheArrowsAndEscapeGivesThemBack) {
    openConnected();
    find("headLeftRight").setFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    EXPECT_EQ(values().headCmdLeftRight, 2100);
    EXPECT_EQ(values().steeringLevel, 5000);
    after(0);
    EXPECT_NE(find<QLabel>("driving").text().toStdString().find("slider"), std::string::npos);
    key(Qt::Key_Escape);
    down(Qt::Key_Right);
    EXPECT_EQ(values().steeringLevel, 5500);
}

TEST_F(HeldKeysTest, KeysThatAreTypedIntoTheAddressDriveNothing) {
    bench.load();
    open();
    auto& host = find<QLineEdit>("host");
    host.clear();
    for (const int code : {Qt::Key_W, Qt::Key_A, Qt::Key_Left, Qt::Key_D}) key(code);
    EXPECT_EQ(host.text(), QStringLiteral("wda"));
    EXPECT_FALSE(find<KeyCap>("cap.W").lit());
}

TEST_F(HeldKeysTest, HeldKeysLightUpTheirCaps) {
    openConnected();
    down(Qt::Key_Up);
    EXPECT_TRUE(find<KeyCap>("cap.Up").lit());
    up(Qt::Key_Up);
    EXPECT_FALSE(find<KeyCap>("cap.Up").lit());
}

TEST_F(HeldKeysTest, TheMouseHoldsAKeyByItsCap) {
    openConnected();
    QTest::mousePress(&find("cap.Up"), Qt::LeftButton);
    after(100);
    EXPECT_EQ(values().gasLevel, 8000);
    QTest::mouseRelease(&find("cap.Up"), Qt::LeftButton);
    settle();
    EXPECT_EQ(values().gasLevel, 10000);
}

TEST_F(HeldKeysTest, KeyboardAndMouseHoldTogether) {
    openConnected();
    down(Qt::Key_Up);
    QTest::mousePress(&find("cap.Left"), Qt::LeftButton);
    settle();
    EXPECT_LT(values().steeringLevel, 5000);
    EXPECT_LT(values().gasLevel, 9000);
    up(Qt::Key_Up);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_LT(values().steeringLevel, 5000);
}

TEST_F(HeldKeysTest, EachHeldKeyHasACapAndAKey) {
    open();
    int keys = 0;
    for (int code = 0x20; code <= 0x5A; ++code) keys += heldKeyOf(code) != nullptr ? 1 : 0;
    for (const int code : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
        keys += heldKeyOf(code) != nullptr ? 1 : 0;
    EXPECT_EQ(keys, static_cast<int>(heldKeyWords().size()));
    for (const HeldKeyWords& one : heldKeyWords()) find<KeyCap>("cap." + one.cap);
}

}  // namespace
}  // namespace quorrin
