#include "replay/control_fields.h"

#include "replay/json_text.h"

namespace quorrin {

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
