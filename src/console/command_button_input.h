// What a person's mouse and keyboard tell a push button, in plain values.
#pragma once

#include <cstdint>

namespace quorrin {

enum class MouseButton { none = 0, left = 1, right = 2, middle = 4 };

// Bits of a shift state.
constexpr int kShiftKey = 1;
constexpr int kControlKey = 2;
constexpr int kAltKey = 4;

// Positions are logical pixels in the coordinates of whatever the pointer is over.
struct MouseStroke {
    MouseButton button = MouseButton::none;
    int shift = 0;
    int x = 0;
    int y = 0;
};

// What kind of key it is decides whether it presses a button at all.
enum class KeyKind {
    character,   // letters, digits, signs, the space bar
    enter,       // either enter key
    edit,        // backspace, insert, delete
    escape,      // belongs to the window
    tab,         // moves the focus, forwards or backwards
    navigation,  // arrows, home, end, page up and down
    function,    // F1 and so on, media keys
    modifier,    // shift, control, alt and the like alone
    shortcut,    // anything together with control, alt or the system key
};

struct KeyStroke {
    KeyKind kind = KeyKind::character;
    int key = 0;  // the character's in capitals; 13 enter, 8 backspace, 45 insert, 46 delete
    int shift = 0;
    bool autoRepeat = false;
    std::uint32_t place = 0;  // which key of the keyboard, for finding its release
};

}  // namespace quorrin
