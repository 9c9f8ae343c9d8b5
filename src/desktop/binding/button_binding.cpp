#include <utility>

#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"
#include "desktop/binding/caption.h"

namespace quorrin {

namespace {

using PictureWords = std::function<std::string(int picture)>;

// Whatever the widget: it shows the button's caption, or words for its picture where there are some, and
// hands on press, release and click.
template <typename Widget>
class ButtonBinding : public Binding {
  public:
    ButtonBinding(Widget& widget, CommandButton& control, const OperatorActs& acts, PictureWords words = {})
        : Binding(widget, control, acts), widget_(widget), control_(control), words_(std::move(words)) {
        start();
    }

    void pressed() {
        if (control_.onMouseDown) act([&pressed = control_] { pressed.operatorPress(); });
    }
    void released() {
        if (control_.onMouseUp) act([&released = control_] { released.operatorRelease(); });
    }
    void clicked() {
        act([&clicked = control_] { clicked.operatorClick(); });
    }

  protected:
    void showValue() override {
        showCaption(widget_,
                    QString::fromStdString(words_ ? words_(control_.picture()) : control_.caption()));
    }

  private:
    Widget& widget_;
    CommandButton& control_;
    PictureWords words_;
};

class CheckBinding : public Binding {
  public:
    CheckBinding(QCheckBox& widget, CheckBox& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        showCaption(widget, QString::fromStdString(control.caption()));
        connect(&widget, &QCheckBox::clicked, this,
                [this](bool checked) { act([&set = control_, checked] { set.operatorSet(checked); }); });
        start();
    }

  protected:
    void showValue() override {
        if (widget_.isChecked() != control_.checked()) widget_.setChecked(control_.checked());
    }

  private:
    QCheckBox& widget_;
    CheckBox& control_;
};

class OptionBinding : public Binding {
  public:
    OptionBinding(QRadioButton& widget, OptionButton& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        // Which of them is chosen is the form's business.
        widget.setAutoExclusive(false);
        showCaption(widget, QString::fromStdString(control.caption()));
        connect(&widget, &QRadioButton::clicked, this,
                [this] { act([&chosen = control_] { chosen.operatorChoose(); }); });
        start();
    }

  protected:
    void showValue() override {
        if (widget_.isChecked() != control_.chosen()) widget_.setChecked(control_.chosen());
    }

  private:
    QRadioButton& widget_;
    OptionButton& control_;
};

}  // namespace

void bind(QAbstractButton& widget, CommandButton& control, const OperatorActs& acts) {
    auto* const binding = new ButtonBinding(widget, control, acts);
    QObject::connect(&widget, &QAbstractButton::pressed, binding, [binding] { binding->pressed(); });
    QObject::connect(&widget, &QAbstractButton::released, binding, [binding] { binding->released(); });
    QObject::connect(&widget, &QAbstractButton::clicked, binding, [binding] { binding->clicked(); });
}

void bind(Command& widget, CommandButton& control, const OperatorActs& acts) {
    bind(widget, control, acts, {});
}

void bind(Command& widget, CommandButton& control, const OperatorActs& acts, PictureWords words) {
    auto* const binding = new ButtonBinding(widget, control, acts, std::move(words));
    widget.onPress = [binding] { binding->pressed(); };
    widget.onRelease = [binding] { binding->released(); };
    widget.onClick = [binding] { binding->clicked(); };
}

void bind(QCheckBox& widget, CheckBox& control, const OperatorActs& acts) {
    new CheckBinding(widget, control, acts);
}

void bind(QRadioButton& widget, OptionButton& control, const OperatorActs& acts) {
    new OptionBinding(widget, control, acts);
}

}  // namespace quorrin
