#include "monkey/monkey.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <array>

namespace quorrin {

namespace {

constexpr std::array kKeys = {
    Qt::Key_Up,      Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Space,     Qt::Key_Home,
    Qt::Key_End,     Qt::Key_Delete, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Backspace, Qt::Key_Tab,
    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Escape,   Qt::Key_A,      Qt::Key_P,         Qt::Key_E,
    Qt::Key_T,       Qt::Key_5,      Qt::Key_F1,       Qt::Key_F5,     Qt::Key_F6,        Qt::Key_F8,
    Qt::Key_F11,     Qt::Key_Shift};
constexpr std::array kModifiers = {Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
                                   Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier};
constexpr std::array kTexts = {"0", "1",   "40",  "7000", "-1",  "99999", "3.5",  "10.4",  "abc",  "",
                               " ", "1e3", "127", "255",  "256", "10001", "0000", "32767", "32768"};

// Left alone mostly, or no station would live for long.
bool endsTheProgram(const QWidget& widget) {
    return widget.objectName() == "cmdExit" || widget.objectName() == "cmdCancel";
}

}  // namespace

void Monkey::act() {
    if (below(12) == 0) {
        moveStick();
        return;
    }
    QWidget* chosen = window();
    if (chosen == nullptr) return;
    if (below(60) == 0) {
        disturbWindow(*chosen);
        return;
    }
    QWidget* widget = widgetOf(*chosen);
    if (endsTheProgram(*widget) && below(40) != 0) return;
    switch (below(8)) {
        case 0:
            drag(*widget);
            break;
        case 1:
            wheel(*widget);
            break;
        case 2:
        case 3:
            key(*widget);
            break;
        case 4:
            type(*widget);
            break;
        default:
            click(*widget);
            break;
    }
}

void Monkey::leaveMenu() {
    QWidget* const menu = QApplication::activePopupWidget();
    if (menu == nullptr) return;
    note("menu");
    const QPointer<QWidget> still(menu);
    for (int i = below(5); i > 0 && still; --i) QTest::keyClick(still, Qt::Key_Down);
    if (still) QTest::keyClick(still, below(3) == 0 ? Qt::Key_Return : Qt::Key_Escape);
    if (still && still->isVisible()) still->close();
}

int Monkey::pauseMs() {
    return below(20) == 0 ? below(3000) : below(120);
}

// A modal window keeps the others from being reached, as on a screen.
QWidget* Monkey::window() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    std::vector<QWidget*> visible;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->windowType() != Qt::ToolTip) visible.push_back(top);
    return visible.empty() ? nullptr : oneOf(visible.data(), static_cast<int>(visible.size()));
}

QWidget* Monkey::widgetOf(QWidget& window) {
    std::vector<QWidget*> there;
    for (QWidget* child : window.findChildren<QWidget*>())
        if (child->isVisible() && child->window() == &window && !child->visibleRegion().isEmpty())
            there.push_back(child);
    return there.empty() ? &window : oneOf(there.data(), static_cast<int>(there.size()));
}

QPoint Monkey::pointIn(const QWidget& widget) {
    return {below(std::max(1, widget.width())), below(std::max(1, widget.height()))};
}

void Monkey::click(QWidget& widget) {
    note("click");
    const Qt::MouseButton button = below(10) == 0 ? Qt::RightButton : Qt::LeftButton;
    QTest::mouseMove(&widget, pointIn(widget));
    if (below(10) == 0) {
        QTest::mouseDClick(&widget, button, {}, pointIn(widget));
    } else {
        QTest::mouseClick(&widget, button, {}, pointIn(widget));
    }
}

void Monkey::drag(QWidget& widget) {
    note("drag");
    const QPointer<QWidget> still(&widget);
    QTest::mousePress(&widget, Qt::LeftButton, {}, pointIn(widget));
    for (int i = below(4); i > 0 && still; --i)
        QTest::mouseMove(still, pointIn(*still) + QPoint(below(60) - 30, 0));
    if (still) QTest::mouseRelease(still, Qt::LeftButton, {}, pointIn(*still) + QPoint(below(400) - 200, 0));
}

void Monkey::wheel(QWidget& widget) {
    note("wheel");
    const QPoint at = pointIn(widget);
    QWheelEvent turn(at, widget.mapToGlobal(at), {}, QPoint(0, below(2) == 0 ? 120 : -120), Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &turn);
}

void Monkey::key(QWidget& widget) {
    note("key");
    const QPointer<QWidget> still(&widget);
    if (below(3) == 0) widget.setFocus();
    const Qt::Key pressed = oneOf(kKeys.data(), static_cast<int>(kKeys.size()));
    const Qt::KeyboardModifier with = oneOf(kModifiers.data(), static_cast<int>(kModifiers.size()));
    QWidget* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : still.data();
    const QPointer<QWidget> pressedAt(target);
    for (int i = 1 + below(5); i > 0 && pressedAt; --i) QTest::keyPress(pressedAt, pressed, with);
    if (pressedAt) QTest::keyRelease(pressedAt, pressed, with);
}

void Monkey::type(QWidget& widget) {
    note("type");
    auto* box = qobject_cast<QLineEdit*>(&widget);
    if (box == nullptr) {
        const auto boxes = widget.window()->findChildren<QLineEdit*>();
        if (boxes.empty()) return;
        box = boxes[below(static_cast<int>(boxes.size()))];
    }
    if (!box->isVisible() || !box->isEnabled()) return;
    const QPointer<QLineEdit> still(box);
    box->setFocus();
    if (below(2) == 0) box->selectAll();
    for (const char* letter = oneOf(kTexts.data(), static_cast<int>(kTexts.size())); *letter != 0 && still;
         ++letter)
        QTest::keyClick(still, *letter);
    if (still && below(2) == 0) QTest::keyClick(still, Qt::Key_Return);
}

void Monkey::moveStick() {
    note("joystick");
    JoystickState state;
    state.x = below(10001);
    state.y = below(10001);
    state.slider = below(10001);
    state.pov = below(3) == 0 ? below(36) * 1000 : kHatCentred;
    for (bool& button : state.buttons) button = below(5) == 0;
    joysticks_.move(state);
}

void Monkey::disturbWindow(QWidget& window) {
    note("window");
    switch (below(4)) {
        case 0:
            window.resize(200 + below(1800), 150 + below(1200));
            break;
        case 1:
            window.move(below(800), below(600));
            break;
        case 2:
            window.activateWindow();
            break;
        default:
            if (window.objectName() != "frmGUI" || below(20) == 0) window.close();
            break;
    }
}

}  // namespace quorrin
