#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"

namespace quorrin {

namespace {

class ButtonBinding : public Binding {
  public:
    ButtonBinding(QAbstractButton& widget, CommandButton& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        connect(&widget, &QAbstractButton::pressed, this, [this] {
            if (control_.onMouseDown) act([&pressed = control_] { pressed.operatorPress(); });
        });
        connect(&widget, &QAbstractButton::released, this, [this] {
            if (control_.onMouseUp) act([&released = control_] { released.operatorRelease(); });
        });
        connect(&widget, &QAbstractButton::clicked, this,
                [this] { act([&clicked = control_] { clicked.operatorClick(); }); });
        start();
    }

  protected:
    void showValue() override {
        // An ampersand is a letter here, no shortcut.
        const QString text = QString::fromStdString(control_.caption()).replace('&', QStringLiteral("&&"));
        if (widget_.text() != text) widget_.setText(text);
    }

  private:
    QAbstractButton& widget_;
    CommandButton& control_;
};

class CommandBinding : public Binding {
  public:
    CommandBinding(Command& widget, CommandButton& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        widget.onPress = [this] {
            if (control_.onMouseDown) act([&pressed = control_] { pressed.operatorPress(); });
        };
        widget.onRelease = [this] {
            if (control_.onMouseUp) act([&released = control_] { released.operatorRelease(); });
        };
        widget.onClick = [this] { act([&clicked = control_] { clicked.operatorClick(); }); };
        start();
    }

  protected:
    void showValue() override {
        const QString caption = QString::fromStdString(control_.caption());
        if (widget_.caption() != caption) widget_.setCaption(caption);
    }

  private:
    Command& widget_;
    CommandButton& control_;
};

class CheckBinding : public Binding {
  public:
    CheckBinding(QCheckBox& widget, CheckBox& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        widget.setText(QString::fromStdString(control.caption()));
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
        widget.setText(QString::fromStdString(control.caption()));
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
    new ButtonBinding(widget, control, acts);
}

void bind(Command& widget, CommandButton& control, const OperatorActs& acts) {
    new CommandBinding(widget, control, acts);
}

void bind(QCheckBox& widget, CheckBox& control, const OperatorActs& acts) {
    new CheckBinding(widget, control, acts);
}

void bind(QRadioButton& widget, OptionButton& control, const OperatorActs& acts) {
    new OptionBinding(widget, control, acts);
}

}  // namespace quorrin
