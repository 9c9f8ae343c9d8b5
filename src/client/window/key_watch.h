// The keys that are held in a window: real keyboard events to HeldKeys, auto-repeat left out.
//
// A driving key is taken wherever the focus is in the window, but for a field that one types in, and for the
// arrows in a slider. Its coming up always counts. forget(): what is held down counts for nothing until it
// has come up; the keyboard's own repeat of it is nobody's.
//
// X tells a repeat as a release and a press of one moment. On a busy machine Qt may see the release alone and
// take both for real. So a release counts only kReleaseMs after it came, unless a press of the same moment
// shows that it was a repeat.
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <functional>
#include <map>
#include <set>

#include "client/drive_keys.h"
#include "platform/timer_mm.h"

namespace quorrin {

class KeyWatch : public QObject {
  public:
    static constexpr std::int64_t kReleaseMs = 20;

    KeyWatch(QWidget& window, Clock& clock);

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

    void letGo();
    bool isRepeat(const QKeyEvent& press) const;

    std::set<int> held_;     // key codes
    std::set<int> leaving_;  // those of them whose release has come
    // Those that were held when they were forgotten.
    std::set<int> forgotten_;
    std::map<int, quint64> releasedMs_;  // by the window system's clock
    TimerMM release_;
};

// Which of the held keys that key code is; null for none.
bool HeldKeys::*heldKeyOf(int keyCode);

}  // namespace quorrin
