#include "client/window/key_watch.h"

#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <map>

namespace quorrin {

namespace {
constexpr quint64 kOneMomentMs = 1;
}

bool HeldKeys::*heldKeyOf(int keyCode) {
    static const std::map<int, bool HeldKeys::*> kKeys = {
        {Qt::Key_Up, &HeldKeys::forward},  {Qt::Key_Down, &HeldKeys::brake},
        {Qt::Key_Left, &HeldKeys::left},   {Qt::Key_Right, &HeldKeys::right},
        {Qt::Key_W, &HeldKeys::headUp},    {Qt::Key_S, &HeldKeys::headDown},
        {Qt::Key_A, &HeldKeys::headLeft},  {Qt::Key_D, &HeldKeys::headRight},
        {Qt::Key_E, &HeldKeys::mouthOpen}, {Qt::Key_Q, &HeldKeys::mouthClose},
    };
    const auto found = kKeys.find(keyCode);
    return found == kKeys.end() ? nullptr : found->second;
}

KeyWatch::KeyWatch(QWidget& window, Clock& clock)
    : QObject(&window), window_(window), release_(clock, [this] { letGo(); }) {
    release_.setPeriodic(false);
    release_.setInterval(kReleaseMs);
    qApp->installEventFilter(this);
}

void KeyWatch::forget() {
    forgotten_.insert(held_.begin(), held_.end());
    held_.clear();
    leaving_.clear();
}

bool KeyWatch::isRepeat(const QKeyEvent& press) const {
    const auto before = releasedMs_.find(press.key());
    // Without a time it was made by a program.
    return before != releasedMs_.end() && before->second != 0 &&
           press.timestamp() - before->second <= kOneMomentMs;
}

void KeyWatch::pressed(const QKeyEvent& key) {
    const int code = key.key();
    if (key.isAutoRepeat()) return;
    if (isRepeat(key)) {
        leaving_.erase(code);
        return;
    }
    if (leaving_.count(code) != 0) letGo();
    forgotten_.erase(code);
    if (held_.insert(code).second && onChange) onChange(held());
}

void KeyWatch::released(const QKeyEvent& key) {
    if (key.isAutoRepeat()) return;
    releasedMs_[key.key()] = key.timestamp();
    if (held_.count(key.key()) == 0) return;
    leaving_.insert(key.key());
    release_.setEnabled(true);
}

void KeyWatch::letGo() {
    if (leaving_.empty()) return;
    for (const int code : leaving_) held_.erase(code);
    leaving_.clear();
    if (onChange) onChange(held());
}

HeldKeys KeyWatch::held() const {
    HeldKeys keys;
    for (const int code : held_) keys.*heldKeyOf(code) = true;
    return keys;
}

bool KeyWatch::takes(const QWidget& widget, const QKeyEvent& event) const {
    if (heldKeyOf(event.key()) == nullptr || qobject_cast<const QLineEdit*>(&widget) != nullptr) return false;
    constexpr auto kNotOurs = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((event.modifiers() & kNotOurs) != 0) return false;
    const bool arrow = event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
    return !(arrow && qobject_cast<const QSlider*>(&widget) != nullptr);
}

bool KeyWatch::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    auto* const widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != &window_) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::KeyPress) {
        if (!takes(*widget, key)) return false;
        pressed(key);
        return true;
    }
    if (held_.count(key.key()) == 0 && forgotten_.count(key.key()) == 0) return false;
    released(key);
    return true;
}

}  // namespace quorrin
