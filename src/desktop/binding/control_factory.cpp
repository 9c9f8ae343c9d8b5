#include "desktop/binding/control_factory.h"

#include <QScrollBar>
#include <QShortcut>
#include <QSlider>
#include <utility>

#include "base/program_error.h"
#include "console/control_words.h"

namespace quorrin {

namespace {

// Keeps a shared thing for as long as a widget lives.
class Keeper : public QObject {
  public:
    Keeper(QObject& parent, std::shared_ptr<FocusLink> kept) : QObject(&parent), kept_(std::move(kept)) {}

  private:
    std::shared_ptr<FocusLink> kept_;
};

// The control as its kind, or a ProgramError.
template <typename Kind>
Kind& as(Control& control) {
    auto* const kind = dynamic_cast<Kind*>(&control);
    if (kind == nullptr) throw ProgramError("control " + control.name() + " is of another kind");
    return *kind;
}

template <typename Widget, typename Kind, typename... Args>
Widget* bound(Kind& control, const OperatorActs& acts, Args&&... args) {
    auto* const widget = new Widget(std::forward<Args>(args)...);
    bind(*widget, control, acts);
    return widget;
}

}  // namespace

ControlFactory::ControlFactory(const OperatorActs& acts, Form& form, ImageList images)
    : acts_(acts), form_(form), images_(std::move(images)), focus_(std::make_shared<FocusLink>(form, acts)) {}

Control& ControlFactory::control(const std::string& name) const {
    Control* const found = form_.find(name);
    if (found == nullptr) throw ProgramError("form " + form_.name() + " has no control " + name);
    return *found;
}

QWidget* ControlFactory::operator()(const std::string& controlName) {
    Control& wanted = control(controlName);
    QWidget* const widget = make(wanted);
    dress(*widget, wanted);
    return widget;
}

QWidget* ControlFactory::make(Control& wanted) {
    if (auto* box = dynamic_cast<TextBox*>(&wanted)) return bound<QLineEdit>(*box, acts_);
    if (auto* label = dynamic_cast<Label*>(&wanted)) return bound<ShadowLabel>(*label, acts_);
    if (auto* button = dynamic_cast<CommandButton*>(&wanted)) return bound<Command>(*button, acts_);
    if (auto* check = dynamic_cast<CheckBox*>(&wanted)) return bound<QCheckBox>(*check, acts_);
    if (auto* option = dynamic_cast<OptionButton*>(&wanted)) return bound<QRadioButton>(*option, acts_);
    if (auto* slider = dynamic_cast<Slider*>(&wanted)) return bound<QSlider>(*slider, acts_, Qt::Horizontal);
    if (auto* combo = dynamic_cast<ComboBox*>(&wanted)) return bound<QComboBox>(*combo, acts_);
    if (auto* list = dynamic_cast<ListBox*>(&wanted)) return bound<QListView>(*list, acts_);
    if (auto* picture = dynamic_cast<Picture*>(&wanted)) return bound<PictureView>(*picture, acts_, images_);
    if (auto* lamp = dynamic_cast<Shape*>(&wanted)) return bound<Lamp>(*lamp, acts_);
    if (auto* frame = dynamic_cast<Frame*>(&wanted))
        return bound<QGroupBox>(*frame, acts_, QString::fromStdString(frame->caption()));
    throw ProgramError("control " + wanted.name() + " has no widget");
}

QSlider* ControlFactory::slider(const std::string& controlName, Qt::Orientation orientation) {
    auto& moved = as<Slider>(control(controlName));
    auto* const widget = bound<QSlider>(moved, acts_, orientation);
    dress(*widget, moved);
    return widget;
}

QScrollBar* ControlFactory::scrollBar(const std::string& controlName, Qt::Orientation orientation) {
    auto& moved = as<Slider>(control(controlName));
    auto* const widget = bound<QScrollBar>(moved, acts_, orientation);
    dress(*widget, moved);
    return widget;
}

QLineEdit* ControlFactory::readOut(const std::string& controlName) {
    auto& box = as<TextBox>(control(controlName));
    auto* const widget = bound<QLineEdit>(box, acts_);
    widget->setReadOnly(true);
    dress(*widget, box);
    return widget;
}

void ControlFactory::dress(QWidget& widget, Control& dressed) {
    const ControlWords& words = controlWords(form_.name(), dressed.name());
    widget.setObjectName(QString::fromStdString(dressed.name()));
    widget.setAccessibleName(QString::fromStdString(words.name));
    widget.setToolTip(QString::fromStdString(words.tip));
    const bool has = widget.findChild<QShortcut*>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
    if (!words.shortcut.empty() && !has) addShortcut(widget, dressed, words.shortcut);
    if (widget.focusPolicy() == Qt::NoFocus) return;
    focus_->add(widget, dressed);
    new Keeper(widget, focus_);
}

// A key's shortcut clicks it, any other control's brings the focus to it.
void ControlFactory::addShortcut(QWidget& widget, Control& dressed, const std::string& keys) {
    auto* const shortcut = new QShortcut(QKeySequence(QString::fromStdString(keys)), &widget);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &widget, [acts = acts_, &widget, &dressed] {
        if (auto* button = dynamic_cast<CommandButton*>(&dressed)) {
            acts.act([button] { button->operatorClick(); });
        } else if (auto* label = dynamic_cast<Label*>(&dressed)) {
            acts.act([label] { label->operatorClick(); });
        } else if (auto* check = dynamic_cast<CheckBox*>(&dressed)) {
            acts.act([check] { check->operatorSet(!check->checked()); });
        } else {
            widget.setFocus(Qt::ShortcutFocusReason);
        }
    });
}

}  // namespace quorrin
