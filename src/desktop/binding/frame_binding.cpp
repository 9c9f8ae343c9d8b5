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
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize) tellArea();
        return Binding::eventFilter(watched, event);
    }

  private:
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
