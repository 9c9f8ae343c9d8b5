// The keys that are held in a window: real keyboard events to HeldKeys, auto-repeat left out.
//
// A driving key is taken wherever the focus is in the window, but for a field that one types in, and for the
// arrows in a slider. Its coming up always counts. forget(): what is held down counts for nothing until it
// has come up; the keyboard's own repeat of it is nobody's.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <functional>
#include <set>

#include "client/drive_keys.h"

namespace quorrin {

class KeyWatch : public QObject {
  public:
    explicit KeyWatch(QWidget& window);

    void forget();
    HeldKeys held() const;
    // On each change, but for forget().
    std::function<void(const HeldKeys&)> onChange;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool takes(const QWidget& widget, const QKeyEvent& event) const;

    QWidget& window_;
    std::set<int> held_;  // key codes
};

// Which of the held keys that key code is; null for none.
bool HeldKeys::*heldKeyOf(int keyCode);

}  // namespace quorrin
