#include <QMouseEvent>
#include <QWheelEvent>

#include "console/floor_plan.h"
#include "desktop/widgets/map_scroller.h"
#include "desktop/widgets/plan_picture.h"

namespace quorrin {

namespace {

constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;

}  // namespace

MapViewport::MapViewport(ControlFactory& make, MapControls& controls, const OperatorActs& acts,
                         QWidget* parent)
    : QWidget(parent), controls_(controls), acts_(acts) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    auto* const plan = new PlanPicture(controls.picRobotMap, this);
    make.dress(*plan, controls.picRobotMap);
    make.dress(*this, controls.Frame1);
}

void MapViewport::turn(Slider& bar, int eighths) {
    if (eighths != 0) acts_.act([&bar, eighths] { bar.operatorMove(wheeledTo(bar, eighths)); });
}

void MapViewport::drag(Slider& bar, std::int32_t from, int pixels) {
    const std::int32_t to = draggedTo(bar, from, pixels);
    acts_.act([&bar, to] {
        if (bar.value() != to) bar.operatorMove(to);
    });
}

void MapViewport::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragging_ = true;
    grabbed_ = event->position().toPoint();
    fromX_ = controls_.HScroll1.value();
    fromY_ = controls_.VScroll1.value();
    setCursor(Qt::ClosedHandCursor);
}

void MapViewport::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_) return;
    const QPoint way = event->position().toPoint() - grabbed_;
    drag(controls_.HScroll1, fromX_, way.x());
    drag(controls_.VScroll1, fromY_, way.y());
}

void MapViewport::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    dragging_ = false;
    setCursor(Qt::OpenHandCursor);
}

void MapViewport::wheelEvent(QWheelEvent* event) {
    const QPoint way = event->angleDelta();
    const bool sideways = (event->modifiers() & Qt::ShiftModifier) != 0;
    turn(controls_.HScroll1, sideways ? way.x() + way.y() : way.x());
    turn(controls_.VScroll1, sideways ? 0 : way.y());
    event->accept();
}

void MapViewport::keyPressEvent(QKeyEvent* event) {
    constexpr int kNotchesPerPage = 5;
    switch (event->key()) {
        case Qt::Key_Left:
            return turn(controls_.HScroll1, kNotch);
        case Qt::Key_Right:
            return turn(controls_.HScroll1, -kNotch);
        case Qt::Key_Up:
            return turn(controls_.VScroll1, kNotch);
        case Qt::Key_Down:
            return turn(controls_.VScroll1, -kNotch);
        case Qt::Key_PageUp:
            return turn(controls_.VScroll1, kNotchesPerPage * kNotch);
        case Qt::Key_PageDown:
            return turn(controls_.VScroll1, -kNotchesPerPage * kNotch);
        default:
            QWidget::keyPressEvent(event);
    }
}

void MapViewport::focusInEvent(QFocusEvent*) {
    parentWidget()->update();
}

void MapViewport::focusOutEvent(QFocusEvent*) {
    parentWidget()->update();
}

}  // namespace quorrin
