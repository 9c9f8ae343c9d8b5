// The key caps of the held keys: lit as they are held on the keyboard, and held by the mouse.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "client/client_words.h"
#include "client/window/key_cap.h"

namespace quorrin {

class HeldCaps {
  public:
    // The cap of one key; the caller places it.
    KeyCap* make(bool HeldKeys::*held);

    void light(const HeldKeys& keys);
    void setEnabled(bool enabled);
    // What the mouse holds.
    const HeldKeys& mouse() const { return mouse_; }
    void forgetMouse() { mouse_ = {}; }
    std::function<void()> onMouse;

  private:
    struct Cap {
        bool HeldKeys::*held;
        KeyCap* cap;
    };
    std::vector<Cap> caps_;
    HeldKeys mouse_;
};

}  // namespace quorrin
