#include "desktop/binding/focus_link.h"

#include <QFocusEvent>
#include <utility>

namespace quorrin {

FocusLink::FocusLink(Form& form, const OperatorActs& acts)
    : form_(form), acts_(acts), moved_(form.onFocusMoved, [this] { follow(); }) {}

void FocusLink::add(QWidget& widget, Control& control) {
    widgets_[&control] = &widget;
    controls_[&widget] = &control;
    widget.installEventFilter(this);
    connect(&widget, &QObject::destroyed, this, [this, gone = &widget] { controls_.erase(gone); });
    if (form_.focused() == &control) follow();
}

void FocusLink::orderTabs() const {
    QWidget* before = nullptr;
    for (const Control* control : form_.controls()) {
        const auto found = widgets_.find(control);
        if (found == widgets_.end() || !found->second) continue;
        QWidget* const widget = found->second;
        if (before != nullptr && before->window() == widget->window()) QWidget::setTabOrder(before, widget);
        before = widget;
    }
}

bool FocusLink::eventFilter(QObject* watched, QEvent* event) {
    // A widget that is disabled or hidden hands its focus on as if the operator had pressed Tab.
    if (event->type() == QEvent::FocusOut) {
        const auto& left = static_cast<const QWidget&>(*watched);
        pushedOut_ = !left.isEnabled() || !left.isVisible();
    }
    if (event->type() != QEvent::FocusIn || std::exchange(pushedOut_, false))
        return QObject::eventFilter(watched, event);
    switch (static_cast<const QFocusEvent*>(event)->reason()) {
        case Qt::MouseFocusReason:
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason: {
            const auto found = controls_.find(watched);
            if (found != controls_.end()) acts_.act([entered = found->second] { entered->operatorFocus(); });
            break;
        }
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusLink::follow() {
    const auto found = widgets_.find(form_.focused());
    if (found == widgets_.end() || !found->second) return;
    if (found->second->window()->focusWidget() != found->second)
        found->second->setFocus(Qt::OtherFocusReason);
}

}  // namespace quorrin
