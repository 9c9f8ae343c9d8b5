#include "desktop/binding/binding.h"

#include <QPointer>
#include <utility>

namespace quorrin {

Binding::Binding(QWidget& widget, Control& control, const OperatorActs& acts)
    : QObject(&widget), widget_(widget), control_(control), acts_(acts), looking_(control.onLook, [this] {
          look();
      }) {}

void Binding::act(std::function<void()> deed) {
    ++onTheWay_;
    acts_.act([self = QPointer<Binding>(this), deed = std::move(deed)] {
        if (self) --self->onTheWay_;
        deed();
        if (self) self->look();
    });
}

void Binding::look() {
    if (widget_.isEnabledTo(widget_.parentWidget()) != control_.enabled())
        widget_.setEnabled(control_.enabled());
    if (visible_ != control_.visible()) {
        visible_ = control_.visible();
        // A widget without a parent would become a window.
        if (!visible_ || widget_.parentWidget() != nullptr) widget_.setVisible(visible_);
    }
    if (onTheWay_ > 0 || keepsOwnValue()) return;
    writing_ = true;
    showValue();
    writing_ = false;
}

}  // namespace quorrin
