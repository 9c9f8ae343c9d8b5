#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"
#include "desktop/binding/caption.h"

namespace quorrin {

namespace {

// Whatever the widget: it shows the label's caption.
template <typename Widget>
class LabelBinding : public Binding {
  public:
    LabelBinding(Widget& widget, Label& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        start();
    }

    void clicked() {
        act([&clicked = control_] { clicked.operatorClick(); });
    }

  protected:
    void showValue() override { showCaption(widget_, QString::fromStdString(control_.caption())); }

  private:
    Widget& widget_;
    Label& control_;
};

}  // namespace

void bind(QLabel& widget, Label& control, const OperatorActs& acts) {
    widget.setTextFormat(Qt::PlainText);
    new LabelBinding(widget, control, acts);
}

void bind(ShadowLabel& widget, Label& control, const OperatorActs& acts) {
    new LabelBinding(widget, control, acts);
}

void bindLink(QAbstractButton& widget, Label& control, const OperatorActs& acts) {
    auto* const binding = new LabelBinding(widget, control, acts);
    QObject::connect(&widget, &QAbstractButton::clicked, binding, [binding] { binding->clicked(); });
}

}  // namespace quorrin
