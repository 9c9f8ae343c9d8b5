#include "desktop/widgets/strokes.h"

#include "desktop/binding/key_codes.h"

namespace quorrin {

namespace {

int shiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? kShiftKey : 0) |
           (modifiers & Qt::ControlModifier ? kControlKey : 0) | (modifiers & Qt::AltModifier ? kAltKey : 0);
}

MouseButton button(Qt::MouseButton which) {
    if (which == Qt::LeftButton) return MouseButton::left;
    if (which == Qt::RightButton) return MouseButton::right;
    if (which == Qt::MiddleButton) return MouseButton::middle;
    return MouseButton::none;
}

KeyKind kindOfSpecialKey(int key) {
    switch (key) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return KeyKind::tab;
        case Qt::Key_Escape:
            return KeyKind::escape;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return KeyKind::enter;
        case Qt::Key_Backspace:
        case Qt::Key_Insert:
        case Qt::Key_Delete:
            return KeyKind::edit;
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Meta:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
        case Qt::Key_ScrollLock:
        case Qt::Key_Super_L:
        case Qt::Key_Super_R:
            return KeyKind::modifier;
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            return KeyKind::navigation;
        default:
            return KeyKind::function;
    }
}

// Qt numbers the keys without a character from here on.
constexpr int kFirstSpecialKey = Qt::Key_Escape;

KeyKind kindOf(const QKeyEvent& event) {
    if (event.key() >= kFirstSpecialKey) {
        const KeyKind kind = kindOfSpecialKey(event.key());
        if (kind != KeyKind::enter && kind != KeyKind::edit) return kind;
        return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)
                   ? KeyKind::shortcut
                   : kind;
    }
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)
               ? KeyKind::shortcut
               : KeyKind::character;
}

// Qt's numbers of keys with a character are those of the characters.
int keyNumber(const QKeyEvent& event) {
    return event.key() >= kFirstSpecialKey ? keyCode(event) : event.key();
}

}  // namespace

MouseStroke mouseStroke(const QMouseEvent& event) {
    const QPoint at = event.position().toPoint();
    return {button(event.button()), shiftState(event.modifiers()), at.x(), at.y()};
}

KeyStroke keyStroke(const QKeyEvent& event) {
    KeyStroke stroke;
    stroke.kind = kindOf(event);
    stroke.key = keyNumber(event);
    stroke.shift = shiftState(event.modifiers());
    stroke.autoRepeat = event.isAutoRepeat();
    // The same key has another number with and without shift; its place stays.
    stroke.place =
        event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<std::uint32_t>(event.key());
    return stroke;
}

}  // namespace quorrin
