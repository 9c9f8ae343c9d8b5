#include <QEvent>

#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"
#include "desktop/binding/twips.h"

namespace quorrin {

namespace {

class FrameBinding : public Binding {
  public:
    FrameBinding(QWidget& widget, Frame& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        widget.installEventFilter(this);
        start();
        tellArea();
    }

  protected:
    void showValue() override {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::Show:
            case QEvent::ParentChange:
                watchAround();
                tellArea();
                break;
            case QEvent::Move:
            case QEvent::Resize:
                tellArea();
                break;
            default:
                break;
        }
        return Binding::eventFilter(watched, event);
    }

  private:
    // The frame's place in its window changes also when only something around it moves. A widget that stands
    // around it no more is heard in vain, and harmlessly.
    void watchAround() {
        for (QWidget* around = &widget_; around != nullptr && !around->isWindow();
             around = around->parentWidget())
            around->installEventFilter(this);
    }

    void tellArea() {
        const QPoint place = widget_.mapTo(widget_.window(), QPoint(0, 0));
        control_.setArea(twips(QRect(place, widget_.size())));
    }

    QWidget& widget_;
    Frame& control_;
};

}  // namespace

void bind(QWidget& widget, Frame& control, const OperatorActs& acts) {
    new FrameBinding(widget, control, acts);
}

}  // namespace quorrin
