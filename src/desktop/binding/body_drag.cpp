#include "desktop/binding/body_drag.h"

#include <QCursor>
#include <QPointer>
#include <QWindow>

#include "desktop/binding/window_system.h"

namespace quorrin {

namespace {

ScreenPlace place(const QPoint& pixels) {
    return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel};
}

}  // namespace

BodyDrag::BodyDrag(QWidget& body, WindowDrag& drag, const OperatorActs& acts)
    : QObject(&body), cursorPosition([] { return QCursor::pos(); }), body_(body), drag_(drag), acts_(acts) {
    body.installEventFilter(this);
}

bool BodyDrag::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (press(static_cast<const QMouseEvent&>(*event))) return true;
            break;
        case QEvent::MouseMove:
            if (move(static_cast<const QMouseEvent&>(*event))) return true;
            break;
        case QEvent::MouseButtonRelease:
            if (release(static_cast<const QMouseEvent&>(*event))) return true;
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool BodyDrag::press(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return false;
    QWindow* const window = body_.window()->windowHandle();
    if (!mayPlaceWindows() && window != nullptr && window->startSystemMove()) return true;
    pressed_ = true;
    acts_.act([&drag = drag_, cursor = place(event.globalPosition().toPoint())] { drag.leftDown(cursor); });
    return true;
}

bool BodyDrag::move(const QMouseEvent& event) {
    if (!pressed_ || !(event.buttons() & Qt::LeftButton)) return false;
    acts_.act([self = QPointer<BodyDrag>(this), &drag = drag_] {
        if (self) drag.moved([self] { return self ? place(self->cursorPosition()) : ScreenPlace(); });
    });
    return true;
}

bool BodyDrag::release(const QMouseEvent& event) {
    if (!pressed_ || event.button() != Qt::LeftButton) return false;
    pressed_ = false;
    acts_.act([&drag = drag_] { drag.leftUp(); });
    return true;
}

}  // namespace quorrin
