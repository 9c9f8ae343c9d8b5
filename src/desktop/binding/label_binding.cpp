#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"

namespace quorrin {

namespace {

class LabelBinding : public Binding {
  public:
    LabelBinding(QLabel& widget, Label& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        widget.setTextFormat(Qt::PlainText);
        start();
    }

  protected:
    void showValue() override {
        const QString text = QString::fromStdString(control_.caption());
        if (widget_.text() != text) widget_.setText(text);
    }

  private:
    QLabel& widget_;
    Label& control_;
};

class ShadowBinding : public Binding {
  public:
    ShadowBinding(ShadowLabel& widget, Label& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        start();
    }

  protected:
    void showValue() override {
        const QString text = QString::fromStdString(control_.caption());
        if (widget_.caption() != text) widget_.setCaption(text);
    }

  private:
    ShadowLabel& widget_;
    Label& control_;
};

class LinkBinding : public Binding {
  public:
    LinkBinding(QAbstractButton& widget, Label& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        connect(&widget, &QAbstractButton::clicked, this,
                [this] { act([&clicked = control_] { clicked.operatorClick(); }); });
        start();
    }

  protected:
    void showValue() override {
        const QString text = QString::fromStdString(control_.caption());
        if (widget_.text() != text) widget_.setText(text);
    }

  private:
    QAbstractButton& widget_;
    Label& control_;
};

}  // namespace

void bind(QLabel& widget, Label& control, const OperatorActs& acts) {
    new LabelBinding(widget, control, acts);
}

void bind(ShadowLabel& widget, Label& control, const OperatorActs& acts) {
    new ShadowBinding(widget, control, acts);
}

void bindLink(QAbstractButton& widget, Label& control, const OperatorActs& acts) {
    new LinkBinding(widget, control, acts);
}

}  // namespace quorrin
