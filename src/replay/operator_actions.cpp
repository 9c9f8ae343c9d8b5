#include "replay/operator_actions.h"

#include "base/number_text.h"
#include "replay/script_error.h"
#include "replay/station_fields.h"

namespace quorrin {

namespace {

[[noreturn]] void refuse(const Control& control, const std::string& why, std::int64_t number) {
    throw ScriptError{number, "\"" + control.name() + "\" " + why};
}

// A whole number stands for its digits.
std::string textValue(const Control& control, const ControlValue& to, std::int64_t number) {
    if (const auto* whole = std::get_if<std::int64_t>(&to)) return std::to_string(*whole);
    if (const auto* text = std::get_if<std::string>(&to)) return *text;
    refuse(control, "takes a text", number);
}

std::int32_t wholeValue(const Control& control, const ControlValue& to, std::int64_t number) {
    std::optional<std::int64_t> value;
    if (const auto* whole = std::get_if<std::int64_t>(&to)) value = *whole;
    if (const auto* text = std::get_if<std::string>(&to)) value = parseWhole(*text);
    if (!value || *value < INT32_MIN || *value > INT32_MAX) refuse(control, "takes a whole number", number);
    return static_cast<std::int32_t>(*value);
}

bool truthValue(const Control& control, const ControlValue& to, std::int64_t number) {
    if (const auto* truth = std::get_if<bool>(&to)) return *truth;
    if (const auto* text = std::get_if<std::string>(&to)) {
        if (*text == "True" || *text == "1") return true;
        if (*text == "False" || *text == "0") return false;
    } else if (const auto whole = std::get<std::int64_t>(to); whole == 0 || whole == 1) {
        return whole == 1;
    }
    refuse(control, "takes true or false", number);
}

}  // namespace

Control& OperatorActions::control(const std::string& name, std::int64_t number) {
    Control* found = findControl(station_, name);
    if (found == nullptr) throw ScriptError{number, "unknown control \"" + name + "\""};
    return *found;
}

Form& OperatorActions::form(const std::string& name, std::int64_t number) {
    Form* found = findForm(station_, name);
    if (found == nullptr) throw ScriptError{number, "unknown form \"" + name + "\""};
    return *found;
}

void OperatorActions::perform(const ClickLine& line, std::int64_t number) {
    Control& target = control(line.control, number);
    if (auto* button = dynamic_cast<CommandButton*>(&target)) {
        button->operatorClick();
    } else if (auto* check = dynamic_cast<CheckBox*>(&target)) {
        check->operatorSet(!check->checked());
    } else if (auto* option = dynamic_cast<OptionButton*>(&target)) {
        option->operatorChoose();
    } else if (auto* label = dynamic_cast<Label*>(&target); label != nullptr && label->onClick) {
        label->operatorClick();
    } else {
        refuse(target, "cannot be clicked", number);
    }
}

void OperatorActions::perform(const PressLine& line, std::int64_t number) {
    Control& target = control(line.control, number);
    auto* button = dynamic_cast<CommandButton*>(&target);
    if (button == nullptr) refuse(target, "cannot be pressed", number);
    if (line.down) {
        button->operatorPress();
    } else {
        button->operatorRelease();
    }
}

void OperatorActions::perform(const SetLine& line, std::int64_t number) {
    Control& target = control(line.control, number);
    if (auto* box = dynamic_cast<TextBox*>(&target)) {
        box->operatorEdit(textValue(target, line.to, number));
    } else if (auto* slider = dynamic_cast<Slider*>(&target)) {
        slider->operatorMove(wholeValue(target, line.to, number));
    } else if (auto* check = dynamic_cast<CheckBox*>(&target)) {
        check->operatorSet(truthValue(target, line.to, number));
    } else if (auto* option = dynamic_cast<OptionButton*>(&target)) {
        // A person cannot take a choice back, only choose another option.
        if (truthValue(target, line.to, number)) option->operatorChoose();
    } else if (auto* combo = dynamic_cast<ComboBox*>(&target)) {
        combo->operatorChoose(textValue(target, line.to, number));
    } else {
        refuse(target, "cannot be set", number);
    }
}

void OperatorActions::perform(const KeyLine& line, std::int64_t number) {
    const auto checkKey = [&] {
        if (line.key < 0 || line.key > 255) throw ScriptError{number, "a key is a number from 0 to 255"};
    };
    if (line.onPanel) {
        checkKey();
        Picture& panel = station_.controlPanel.Picture1;
        const int key = static_cast<int>(line.key);
        return line.down ? panel.operatorKeyDown(key) : panel.operatorKeyUp(key);
    }
    Control& target = control(line.control, number);
    auto* box = dynamic_cast<TextBox*>(&target);
    if (box == nullptr) refuse(target, "takes no keys", number);
    checkKey();
    // A key press is the way down; the way up means nothing to a box.
    if (line.down) box->operatorKey(static_cast<int>(line.key));
}

void OperatorActions::perform(const FocusLine& line, std::int64_t number) {
    Control& target = control(line.control, number);
    if (target.usable()) target.form().moveFocus(target);
}

void OperatorActions::perform(const UnloadLine& line, std::int64_t number) {
    Form& closed = line.form.empty() ? station_.gui : form(line.form, number);
    closed.operatorClose();
}

void OperatorActions::perform(const ActivateLine& line, std::int64_t number) {
    form(line.form, number).activate();
}

}  // namespace quorrin
