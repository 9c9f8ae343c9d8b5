// The keys that are held in a window: real keyboard events to HeldKeys, auto-repeat left out.
//
// A driving key is taken wherever the focus is in the window, but for a field that one types in, and for the
// arrows in a slider. Its coming up always counts. forget(): what is held down counts for nothing until it
// has come up; the keyboard's own repeat of it is nobody's.
//
// X tells a repeat as a release and a press of one moment. On a busy machine Qt may see the release alone and
// take both for real, so a press of the same moment as the release before it is a repeat here, too.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <functional>
#include <map>
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
    void pressed(const QKeyEvent& key);
    void released(const QKeyEvent& key);

    std::set<int> held_;  // key codes
    // Those that were held when they were forgotten.
    std::set<int> forgotten_;
    std::map<int, quint64> releasedMs_;  // by the window system's clock
};

// Which of the held keys that key code is; null for none.
bool HeldKeys::*heldKeyOf(int keyCode);

}  // namespace quorrin
