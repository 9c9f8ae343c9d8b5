#include "base/form.h"

#include <utility>

#include "base/program_error.h"

namespace quorrin {

void Form::show() {
    if (!shown_) {
        shown_ = true;
        if (onShownChanged) onShownChanged();
    }
    activate();
}

void Form::showModal() {
    if (!shown_) modal_ = true;
    show();
}

void Form::hide() {
    if (!shown_) return;
    shown_ = false;
    modal_ = false;
    if (onShownChanged) onShownChanged();
}

void Form::activate() {
    if (shown_ && onActivate) onActivate();
}

void Form::moveTo(std::int32_t left, std::int32_t top) {
    area_.left = left;
    area_.top = top;
    if (onMoved) onMoved();
}

void Form::operatorClose() {
    if (!shown_) return;
    if (onOperatorAct) onOperatorAct({OperatorAct::Kind::close, nullptr, {}});
    close();
}

void Form::operatorActivate() {
    if (!shown_) return;
    if (onOperatorAct) onOperatorAct({OperatorAct::Kind::activate, nullptr, {}});
    activate();
}

void Form::close() {
    if (!shown_) return;
    if (onClose) {
        onClose();
    } else {
        hide();
    }
}

Control* Form::find(std::string_view controlName) const {
    const auto found = byName_.find(controlName);
    return found == byName_.end() ? nullptr : found->second;
}

void Form::moveFocus(Control& control) {
    if (focused_ == &control) return;
    if (Control* leaving = std::exchange(focused_, nullptr); leaving != nullptr) {
        stay_ = false;
        if (leaving->onLostFocus) leaving->onLostFocus();
        // The leave handler may have moved the focus itself: then that move stands and this one is over.
        if (focused_ != nullptr) return;
        if (std::exchange(stay_, false)) {
            focused_ = leaving;
            if (onFocusMoved) onFocusMoved();
            return;
        }
    }
    focused_ = &control;
    if (control.onGotFocus) control.onGotFocus();
    if (onFocusMoved) onFocusMoved();
}

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) {
    if (!form_.byName_.emplace(name_, this).second)
        throw ProgramError("form " + form_.name() + " has two controls named " + name_);
    form_.order_.push_back(this);
}

void Control::operatorFocus() {
    if (!usable()) return;
    acts(OperatorAct::Kind::focus);
    form_.moveFocus(*this);
}

void Control::setEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    looks();
}

void Control::setVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    looks();
}

}  // namespace quorrin
