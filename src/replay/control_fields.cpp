#include "replay/control_fields.h"

#include "base/json_text.h"

namespace quorrin {

namespace {

template <typename Kind>
bool is(const Control& control) {
    return dynamic_cast<const Kind*>(&control) != nullptr;
}

}  // namespace

const char* controlKind(const Control& control) {
    if (is<CommandButton>(control)) return "button";
    if (is<TextBox>(control)) return "text";
    if (is<CheckBox>(control)) return "check";
    if (is<OptionButton>(control)) return "option";
    if (is<Slider>(control)) return "slider";
    if (is<ComboBox>(control)) return "dropdown";
    if (is<ListBox>(control)) return "list";
    if (is<Shape>(control)) return "lamp";
    if (is<Picture>(control)) return "picture";
    if (is<Frame>(control)) return "frame";
    if (is<Timer>(control)) return "timer";
    return "label";
}

void appendControl(std::string& out, const Control& control) {
    if (const auto* slider = dynamic_cast<const Slider*>(&control)) {
        appendWhole(out, slider->value());
    } else if (const auto* check = dynamic_cast<const CheckBox*>(&control)) {
        appendWhole(out, check->checked() ? 1 : 0);
    } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
        appendBoolean(out, option->chosen());
    } else if (const auto* shape = dynamic_cast<const Shape*>(&control)) {
        appendWhole(out, shape->fill());
    } else if (const auto* timer = dynamic_cast<const Timer*>(&control)) {
        appendBoolean(out, timer->running());
    } else if (const auto* picture = dynamic_cast<const Picture*>(&control);
               picture && picture->file().empty()) {
        appendWhole(out, picture->number());
    } else {
        appendText(out, control.valueText());
    }
}

}  // namespace quorrin
