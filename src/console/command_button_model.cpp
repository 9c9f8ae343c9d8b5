#include "console/command_button_model.h"

#include <utility>

namespace quorrin {

namespace {

bool pressesButton(KeyKind kind) {
    return kind == KeyKind::character || kind == KeyKind::enter || kind == KeyKind::edit;
}

MouseStroke leftButton(int shift) {
    return {MouseButton::left, shift, 0, 0};
}

}  // namespace

CommandButtonModel::CommandButtonModel(CommandButtonProperties properties)
    : properties_(std::move(properties)) {}

void CommandButtonModel::setCaption(std::string caption) {
    properties_.caption = std::move(caption);
    redraw();
}

void CommandButtonModel::setEnabled(bool enabled) {
    if (properties_.enabled && !enabled) {
        // Its release would be lost: a disabled button hears none.
        letGo();
        watch(false);
        pointerSeen_ = false;
        state_ = ButtonState::normal;
    }
    properties_.enabled = enabled;
    redraw();
}

void CommandButtonModel::setFont(FontChoice font) {
    properties_.font = std::move(font);
    redraw();
}

void CommandButtonModel::setFontColor(Colour colour) {
    properties_.fontColor = colour;
    redraw();
}

void CommandButtonModel::setButtonLook(std::int32_t look) {
    properties_.buttonLook = look;
    redraw();
}

void CommandButtonModel::setIcon(std::int32_t picture) {
    properties_.icon = picture;
    redraw();
}

void CommandButtonModel::setIconAlign(std::int32_t align) {
    properties_.iconAlign = align;
    redraw();
}

void CommandButtonModel::setSizes(FaceSize control, FaceSize caption, FaceSize icon) {
    control_ = control;
    caption_ = caption;
    icon_ = icon;
}

ButtonFace CommandButtonModel::face() const {
    return buttonFace(control_, caption_, imgButtonVisible() ? icon_ : FaceSize{}, properties_.iconAlign,
                      state_ == ButtonState::pressed);
}

void CommandButtonModel::mouseDown(MouseStroke stroke, ButtonPart part) {
    if (stroke.button != MouseButton::left) return;
    clickDue_ = pressStep(turned(stroke, part)) || clickDue_;
}

void CommandButtonModel::mouseMove(MouseStroke stroke, ButtonPart part) {
    if (!properties_.enabled) return;
    const MouseStroke here = turned(stroke, part);
    if (inside(here)) pointerSeen_ = true;
    if (state_ != ButtonState::hover && pressState_ != 1) {
        draw(ButtonState::hover);
        watch(true);
    }
    raise(onMouseMove, here);
}

void CommandButtonModel::mouseUp(MouseStroke stroke, ButtonPart part) {
    const MouseStroke here = turned(stroke, part);
    const bool clicked = clickDue_ && stroke.button == MouseButton::left && inside(here);
    clickDue_ = false;
    releaseStep(here);
    if (clicked) raise(onClick);
}

void CommandButtonModel::mouseDoubleClick(MouseStroke stroke, ButtonPart part) {
    mouseDown(stroke, part);
    if (stroke.button == MouseButton::left) raise(onDoubleClick);
}

bool CommandButtonModel::keyDown(const KeyStroke& stroke) {
    if (!properties_.enabled || !pressesButton(stroke.kind)) return false;
    // A repeat of a key that went down elsewhere must not press: its release would click.
    if (stroke.autoRepeat && keysDown_.count(stroke.place) == 0) return true;
    keysDown_.insert(stroke.place);
    raise(onKeyDown, stroke);
    pressStep(leftButton(stroke.shift));
    return true;
}

bool CommandButtonModel::keyUp(const KeyStroke& stroke) {
    if (stroke.autoRepeat) return keysDown_.count(stroke.place) != 0;
    // The release of a key that went down elsewhere is not for this button: a focus that moved under a held
    // key would click.
    if (keysDown_.erase(stroke.place) == 0) return false;
    raise(onKeyUp, stroke);
    releaseStep(leftButton(stroke.shift));
    raise(onKeyPress, stroke);
    raise(onClick);
    return true;
}

void CommandButtonModel::press() {
    pressStep(leftButton(0));
    releaseStep(leftButton(0));
    raise(onClick);
}

void CommandButtonModel::letGo() {
    keysDown_.clear();
    clickDue_ = false;
    if (pressState_ == 1) releaseStep(leftButton(0));
}

void CommandButtonModel::gone() {
    letGo();
    watch(false);
    if (state_ != ButtonState::normal) draw(ButtonState::normal);
    if (std::exchange(pointerSeen_, false)) raise(onMouseOut);
}

void CommandButtonModel::watchTick(bool cursorInside) {
    if (!watching_ || cursorInside) return;
    watch(false);
    draw(ButtonState::normal);
    // A release outside, or by a key, is watched too, or the button would look hovered for ever; but a
    // pointer that was not here cannot leave.
    if (std::exchange(pointerSeen_, false)) raise(onMouseOut);
}

MouseStroke CommandButtonModel::turned(MouseStroke stroke, ButtonPart part) const {
    if (part == ButtonPart::control) return stroke;
    const ButtonFace pieces = face();
    const SliceRect& piece = part == ButtonPart::lbl ? pieces.lbl : pieces.imgButton;
    stroke.x += piece.left;
    stroke.y += piece.top;
    return stroke;
}

bool CommandButtonModel::inside(const MouseStroke& stroke) const {
    return stroke.x >= 0 && stroke.y >= 0 && stroke.x < control_.width && stroke.y < control_.height;
}

bool CommandButtonModel::pressStep(const MouseStroke& stroke) {
    if (!properties_.enabled || pressState_ == 1) return false;
    pressState_ = 1;
    draw(ButtonState::pressed);
    raise(onMouseDown, stroke);
    return true;
}

void CommandButtonModel::releaseStep(const MouseStroke& stroke) {
    if (!properties_.enabled) return;
    draw(ButtonState::hover);
    pressState_ = 2;
    watch(true);
    raise(onMouseUp, stroke);
}

void CommandButtonModel::watch(bool on) {
    if (watching_ == on) return;
    watching_ = on;
    if (onWatch) onWatch(on);
}

void CommandButtonModel::draw(ButtonState state) {
    state_ = state;
    redraw();
}

void CommandButtonModel::redraw() const {
    if (onRedraw) onRedraw();
}

template <typename Event, typename... Arguments>
void CommandButtonModel::raise(const Event& event, const Arguments&... arguments) const {
    // Asked each time: the handler of an earlier event may have disabled the button.
    if (event && properties_.enabled) event(arguments...);
}

}  // namespace quorrin
