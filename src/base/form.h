// A form without a window: named controls with values, and what an operator may do to them.
//
// A form owns no widget. Controls register themselves under their name ("txtTh1", an array element as
// "txt_ip(1)", a toolbar key as "tbaMusic.Play"), so that the desktop, the replay and the tests find them the
// same way. A control of a form that is not shown, and a disabled control, ignore the operator; the program
// itself may write them at any time.
//
// Controls hold a reference to their form and must not outlive it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/area.h"

namespace quorrin {

class Control;

// One thing that an operator did to a form or to one of its controls.
struct OperatorAct {
    // key: a key press in a box; keyDown, keyUp: the two ways of a key on a picture that takes keys.
    enum class Kind { click, press, release, set, key, keyDown, keyUp, focus, close, activate };
    Kind kind = Kind::click;
    // Null for what is done to the form itself.
    const Control* control = nullptr;
    // What a control was set to (a text, a number, a truth), or the number of the key.
    std::variant<std::string, std::int64_t, bool> value = std::string();
};

class Form {
  public:
    explicit Form(std::string name) : name_(std::move(name)) {}
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    const std::string& name() const { return name_; }

    bool shown() const { return shown_; }
    // Showing a form makes its window the active one.
    void show();
    // The same, and no other form of the station can be used until this one is gone. Returns at once.
    void showModal();
    bool modal() const { return shown_ && modal_; }
    void hide();
    // The form's window became the active one. Does nothing while the form is not shown.
    void activate();
    // Closes the form's window. Does nothing while the form is not shown.
    void close();

    // Where the form's window is; told by a view, all zero without one.
    const Area& area() const { return area_; }
    void setArea(const Area& area) { area_ = area; }
    // The program moves the window, keeping its size.
    void moveTo(std::int32_t left, std::int32_t top);

    // The operator does the same.
    void operatorClose();
    void operatorActivate();

    // The control of that name, or null.
    Control* find(std::string_view controlName) const;
    // In the order of definition.
    const std::vector<Control*>& controls() const { return order_; }

    // The control that has the focus, or null.
    Control* focused() const { return focused_; }
    // Moves the focus: the box that had it is left first, then the new one gets it. No effect when `control`
    // has it already. A control's leave handler may keep the focus by calling stayFocused(), or move it
    // itself: then its own move stands.
    void moveFocus(Control& control);
    void stayFocused() { stay_ = true; }

    // What the form does when its window is closed; set by the form's logic. Without one the form is hidden.
    std::function<void()> onClose;
    // What the form does each time it becomes the active one; set by the form's logic.
    std::function<void()> onActivate;

    // Something that the operator does is about to have its effect; for whoever writes sessions down.
    std::function<void(const OperatorAct& act)> onOperatorAct;

    // Hooks of a view; run after the change.
    std::function<void()> onShownChanged;
    std::function<void()> onFocusMoved;
    std::function<void()> onMoved;

  private:
    friend class Control;
    std::string name_;
    Area area_;
    bool shown_ = false;
    bool modal_ = false;
    bool stay_ = false;
    Control* focused_ = nullptr;
    std::map<std::string, Control*, std::less<>> byName_;
    std::vector<Control*> order_;
};

// What all controls share. Every control has a name that is unique in its form.
class Control {
  public:
    Control(Form& form, std::string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    Form& form() const { return form_; }
    const std::string& name() const { return name_; }

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    bool visible() const { return visible_; }
    void setVisible(bool visible);

    // May the operator use it now?
    bool usable() const { return enabled_ && form_.shown(); }

    void operatorFocus();

    // Text, caption or value: what a watch prints.
    virtual std::string valueText() const = 0;

    // Focus handlers of the form's logic.
    std::function<void()> onGotFocus;
    std::function<void()> onLostFocus;
    // A key press that reached the control; `key` is the key's number (8 backspace, 13 enter).
    std::function<void(int key)> onKeyPress;

    // Hook of a view: something that can be seen has changed.
    std::function<void()> onLook;

  protected:
    void looks() const {
        if (onLook) onLook();
    }
    // The operator is about to do this to the control.
    void acts(OperatorAct::Kind kind, decltype(OperatorAct::value) value = {}) const {
        if (form_.onOperatorAct) form_.onOperatorAct({kind, this, std::move(value)});
    }

  private:
    Form& form_;
    std::string name_;
    bool enabled_ = true;
    bool visible_ = true;
};

}  // namespace quorrin
