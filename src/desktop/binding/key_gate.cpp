#include "desktop/binding/key_gate.h"

#include <QCoreApplication>
#include <QPointer>
#include <utility>

namespace quorrin {

KeyGate::KeyGate(QWidget& window, const OperatorActs& acts)
    : QObject(&window), window_(window), acts_(acts) {}

bool KeyGate::eventFilter(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!key || passing_ || (waiting_.empty() && acts_.underWay() == 0))
        return QObject::eventFilter(watched, event);
    if (waiting_.empty()) askForTurn();
    waiting_.emplace_back(static_cast<QKeyEvent*>(event)->clone());
    return true;
}

// Its turn comes behind what is on the way already.
void KeyGate::askForTurn() {
    acts_.act([self = QPointer<KeyGate>(this)] {
        if (self) self->letOn();
    });
}

void KeyGate::letOn() {
    passing_ = true;
    do {
        const std::unique_ptr<QKeyEvent> event = std::move(waiting_.front());
        waiting_.pop_front();
        QWidget* const target = window_.focusWidget();
        if (target != nullptr) QCoreApplication::sendEvent(target, event.get());
    } while (!waiting_.empty() && acts_.underWay() == 0);
    passing_ = false;
    if (!waiting_.empty()) askForTurn();
}

}  // namespace quorrin
