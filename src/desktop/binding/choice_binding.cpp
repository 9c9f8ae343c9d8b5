#include <QSlider>

#include "desktop/binding/bind.h"
#include "desktop/binding/binding.h"

namespace quorrin {

namespace {

class SliderBinding : public Binding {
  public:
    SliderBinding(QAbstractSlider& widget, Slider& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        connect(&widget, &QAbstractSlider::valueChanged, this, [this](int value) {
            if (!writing()) act([&moved = control_, value] { moved.operatorMove(value); });
        });
        // A standing slider has its maximum at the top by itself, a scroll bar its minimum. Keys and wheel
        // go where the handle goes.
        const bool standing = widget.orientation() == Qt::Vertical;
        const bool slider = qobject_cast<QSlider*>(&widget) != nullptr;
        widget.setInvertedAppearance(control.maximumFirst != (standing && slider));
        widget.setInvertedControls(control.maximumFirst != standing);
        start();
    }

  protected:
    void showValue() override {
        if (widget_.minimum() != control_.minimum() || widget_.maximum() != control_.maximum())
            widget_.setRange(control_.minimum(), control_.maximum());
        if (widget_.singleStep() != control_.smallChange) widget_.setSingleStep(control_.smallChange);
        if (widget_.pageStep() != control_.largeChange) widget_.setPageStep(control_.largeChange);
        if (widget_.value() != control_.value()) widget_.setValue(control_.value());
    }

  private:
    QAbstractSlider& widget_;
    Slider& control_;
};

class ComboBinding : public Binding {
  public:
    ComboBinding(QComboBox& widget, ComboBox& control, const OperatorActs& acts)
        : Binding(widget, control, acts), widget_(widget), control_(control) {
        connect(&widget, &QComboBox::activated, this, [this](int index) {
            act([&chosen = control_, item = widget_.itemText(index).toStdString()] {
                chosen.operatorChoose(item);
            });
        });
        start();
    }

  protected:
    void showValue() override {
        if (!sameItems()) {
            widget_.clear();
            for (const std::string& item : control_.items()) widget_.addItem(QString::fromStdString(item));
        }
        if (widget_.currentIndex() != control_.index()) widget_.setCurrentIndex(control_.index());
    }

  private:
    bool sameItems() const {
        if (widget_.count() != static_cast<int>(control_.items().size())) return false;
        for (int i = 0; i < widget_.count(); ++i)
            if (widget_.itemText(i).toStdString() != control_.items()[static_cast<std::size_t>(i)])
                return false;
        return true;
    }

    QComboBox& widget_;
    ComboBox& control_;
};

}  // namespace

void bind(QAbstractSlider& widget, Slider& control, const OperatorActs& acts) {
    new SliderBinding(widget, control, acts);
}

void bind(QComboBox& widget, ComboBox& control, const OperatorActs& acts) {
    new ComboBinding(widget, control, acts);
}

}  // namespace quorrin
