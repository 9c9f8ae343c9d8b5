// The push button as a widget: real events in, pictures and events out. How it behaves in detail is tested on
// its model; here is what only the widget can get wrong.
#include "desktop/widgets/command.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QShortcut>
#include <QTest>
#include <QTimerEvent>
#include <QVBoxLayout>
#include <string>

namespace quorrin {
namespace {

struct CommandWidget : testing::Test {
    // Before the widgets: a button that goes while it is pressed still tells of its release.
    std::string told;
    QWidget window;
    QVBoxLayout column{&window};
    Command& button = *new Command(&window);
    QLineEdit& box = *new QLineEdit(&window);

    void SetUp() override {
        button.setCaption("Start");
        column.addWidget(&button);
        column.addWidget(&box);
        button.onPress = [this] { told += "press "; };
        button.onRelease = [this] { told += "release "; };
        button.onClick = [this] { told += "click "; };
        button.onDoubleClick = [this] { told += "double "; };
        button.onMouseOut = [this] { told += "out "; };
        window.show();
        window.activateWindow();
        button.setFocus();
        QCoreApplication::processEvents();
        told.clear();
    }

    QTimer& watch() const { return *button.findChild<QTimer*>("Timer1"); }
    // A period of the watch goes by.
    void watchFires() const {
        QTimerEvent event(watch().timerId());
        QCoreApplication::sendEvent(&watch(), &event);
    }
    void cursorAt(QPoint inButton) {
        button.cursorPosition = [this, inButton] { return button.mapToGlobal(inButton); };
    }
    void send(QEvent::Type type, int key, bool autoRepeat = false, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(type, key, modifiers, QString(), autoRepeat);
        QCoreApplication::sendEvent(&button, &event);
    }
};

TEST_F(CommandWidget, AMouseClickPressesReleasesAndClicks) {
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(told, "press release click ");
}

TEST_F(CommandWidget, ReleasedOutsideItDoesNotClick) {
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(-5, -5));
    EXPECT_EQ(told, "press release ");
}

TEST_F(CommandWidget, TheRightMouseButtonDoesNotPress) {
    QTest::mousePress(&button, Qt::RightButton);
    EXPECT_EQ(told, "");
}

TEST_F(CommandWidget, TwoQuickClicksAreTwoClicksAndADoubleClick) {
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseDClick(&button, Qt::LeftButton);
    EXPECT_EQ(told.substr(0, 20), "press release click ");
    EXPECT_EQ(told.find("double") != std::string::npos, true);
}

TEST_F(CommandWidget, SpaceAndEnterWorkIt) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        told.clear();
        QTest::keyClick(&button, key);
        EXPECT_EQ(told, "press release click ") << key;
    }
}

TEST_F(CommandWidget, ALetterWorksIt) {
    QTest::keyClick(&button, Qt::Key_G);
    EXPECT_EQ(told, "press release click ");
}

TEST_F(CommandWidget, TabMovesOnWithoutPressing) {
    QTest::keyClick(&button, Qt::Key_Tab);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(told, "");
}

TEST_F(CommandWidget, KeysOfTheWindowArePassedOn) {
    for (const auto key : {Qt::Key_Escape, Qt::Key_Left, Qt::Key_Down, Qt::Key_Home, Qt::Key_PageUp,
                           Qt::Key_F5, Qt::Key_Shift, Qt::Key_Control, Qt::Key_VolumeUp}) {
        QTest::keyClick(&button, key);
        EXPECT_EQ(told, "") << key;
    }
}

TEST_F(CommandWidget, AKeyWithControlOrAltIsAShortcutAndNoPress) {
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        QTest::keyClick(&button, Qt::Key_S, modifier);
        QTest::keyClick(&button, Qt::Key_Return, modifier);
        EXPECT_EQ(told, "") << modifier;
    }
}

TEST_F(CommandWidget, AReleaseByAutoRepeatIsNone) {
    send(QEvent::KeyPress, Qt::Key_Space);
    send(QEvent::KeyRelease, Qt::Key_Space, true);
    send(QEvent::KeyPress, Qt::Key_Space, true);
    EXPECT_EQ(told, "press ");
    send(QEvent::KeyRelease, Qt::Key_Space);
    EXPECT_EQ(told, "press release click ");
}

TEST_F(CommandWidget, ADisabledButtonTakesNothing) {
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::mouseMove(&button);
    EXPECT_EQ(told, "");
    EXPECT_FALSE(watch().isActive());
}

TEST_F(CommandWidget, LosingTheFocusWhilePressedReleasesWithoutAClick) {
    QTest::keyPress(&button, Qt::Key_Space);
    box.setFocus();
    EXPECT_EQ(told, "press release ");
}

TEST_F(CommandWidget, AKeyWhosePressWentElsewhereDoesNotClick) {
    send(QEvent::KeyRelease, Qt::Key_Return);
    EXPECT_EQ(told, "");
}

TEST_F(CommandWidget, HidingItWhilePressedReleases) {
    QTest::mousePress(&button, Qt::LeftButton);
    button.hide();
    EXPECT_EQ(told, "press release ");
    EXPECT_FALSE(watch().isActive());
}

TEST_F(CommandWidget, AnotherWindowComingUpWhilePressedReleases) {
    QTest::mousePress(&button, Qt::LeftButton);
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, "press release ");
}

TEST_F(CommandWidget, TheWatchIsOffAtRestAndRunsEvery50MsUnderThePointer) {
    EXPECT_FALSE(watch().isActive());
    EXPECT_EQ(watch().interval(), 50);
    QTest::mouseMove(&button, button.rect().center());
    EXPECT_TRUE(watch().isActive());
}

TEST_F(CommandWidget, LeavingQuicklyGivesOneMouseOutAtTheNextPeriod) {
    QTest::mouseMove(&button, button.rect().center());
    cursorAt(button.rect().center());
    watchFires();
    EXPECT_EQ(told, "");
    cursorAt({500, 500});
    EXPECT_EQ(told, "");
    watchFires();
    watchFires();
    EXPECT_EQ(told, "out ");
    EXPECT_FALSE(watch().isActive());
}

TEST_F(CommandWidget, ADisplayThatTellsOfNoCursorOutsideStillEndsTheHover) {
    QTest::mouseMove(&button, button.rect().center());
    cursorAt(button.rect().center());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    EXPECT_EQ(told, "");
    watchFires();
    EXPECT_EQ(told, "out ");
}

TEST_F(CommandWidget, AParentThatIsDisabledDisablesIt) {
    window.setEnabled(false);
    EXPECT_EQ(button.model().cell(), ButtonState::disabled);
    window.setEnabled(true);
    EXPECT_EQ(button.model().cell(), ButtonState::normal);
}

TEST_F(CommandWidget, AShortcutOfTheWindowGoesBeforeTheButton) {
    int found = 0;
    QShortcut shortcut(QKeySequence(Qt::Key_F), &window, [&found] { ++found; });
    QTest::keyClick(&button, Qt::Key_F);
    EXPECT_EQ(found, 1);
    EXPECT_EQ(told, "");
}

TEST_F(CommandWidget, EachKeyIsTheSameKeyWithAndWithoutShift) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Exclam, Qt::ShiftModifier, 10, 0, 0);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_1, {}, 10, 0, 0);
    QCoreApplication::sendEvent(&button, &press);
    QCoreApplication::sendEvent(&button, &release);
    EXPECT_EQ(told, "press release click ");
}

TEST_F(CommandWidget, KeyEventsTellTheKeysNumber) {
    int number = 0;
    button.model().onKeyPress = [&number](const KeyStroke& stroke) { number = stroke.key; };
    QTest::keyClick(&button, Qt::Key_Enter);
    EXPECT_EQ(number, 13);
    QTest::keyClick(&button, Qt::Key_Backspace);
    EXPECT_EQ(number, 8);
    QTest::keyClick(&button, Qt::Key_Delete);
    EXPECT_EQ(number, 46);
    QTest::keyClick(&button, Qt::Key_A);
    EXPECT_EQ(number, 'A');
}

TEST_F(CommandWidget, MouseEventsTellButtonShiftAndPlace) {
    MouseStroke seen;
    button.model().onMouseDown = [&seen](const MouseStroke& stroke) { seen = stroke; };
    QTest::mousePress(&button, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier, QPoint(4, 5));
    EXPECT_EQ(seen.button, MouseButton::left);
    EXPECT_EQ(seen.shift, kShiftKey | kControlKey);
    EXPECT_EQ(seen.x, 4);
    EXPECT_EQ(seen.y, 5);
}

}  // namespace
}  // namespace quorrin
