// The behaviour of `Command`, the skinned push button, without a widget.
//
// A view tells it what mouse, keyboard, cursor and focus do; it answers with events and with what to draw. It
// does not draw, measure text, own a timer or know where the cursor is: the view polls the cursor every
// kHoverWatchMs while onWatch has asked for it. Units are logical pixels.
//
// The drawing state goes 0 normal -> 3 hover with the pointer, -> 1 pressed with the left button or a key,
// -> 3 with its release; only the watch leads from 3 back to 0. The press state is 0 at first, 1 while
// pressed, 2 after a release. A disabled button takes no input and raises no event.
//
// Every state is set before the event that tells of it. What a handler throws passes through.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>

#include "console/button_face.h"
#include "console/command_button_input.h"
#include "console/command_button_properties.h"

namespace quorrin {

constexpr int kHoverWatchMs = 50;

// The strip has a cell for each of these; all but "disabled" are drawing states too.
enum class ButtonState : std::uint8_t { normal = 0, pressed = 1, disabled = 2, hover = 3 };

// The pieces that the pointer can be over.
enum class ButtonPart { control, lbl, imgButton };

class CommandButtonModel {
  public:
    explicit CommandButtonModel(CommandButtonProperties properties = {});

    const CommandButtonProperties& properties() const { return properties_; }
    void setCaption(std::string caption);
    void setEnabled(bool enabled);
    void setFont(FontChoice font);
    void setFontColor(Colour colour);
    void setButtonLook(std::int32_t look);
    void setIcon(std::int32_t picture);
    void setIconAlign(std::int32_t align);

    // Never "disabled".
    ButtonState state() const { return state_; }
    int pressState() const { return pressState_; }
    bool watching() const { return watching_; }
    // The cell of the strip to draw.
    ButtonState cell() const { return properties_.enabled ? state_ : ButtonState::disabled; }
    bool imgButtonVisible() const { return properties_.icon != 0; }

    // The view's sizes; the face follows from them and from the state.
    void setSizes(FaceSize control, FaceSize caption, FaceSize icon);
    ButtonFace face() const;

    // A position on `lbl` or `imgButton` is told in that piece's coordinates.
    void mouseDown(MouseStroke stroke, ButtonPart part = ButtonPart::control);
    void mouseMove(MouseStroke stroke, ButtonPart part = ButtonPart::control);
    void mouseUp(MouseStroke stroke, ButtonPart part = ButtonPart::control);
    // The second press of two quick ones. It presses like any other, so that no press of a hasty hand is
    // lost.
    void mouseDoubleClick(MouseStroke stroke, ButtonPart part = ButtonPart::control);

    // False: the key is not for a button, and somebody else may have it.
    bool keyDown(const KeyStroke& stroke);
    bool keyUp(const KeyStroke& stroke);

    // A whole press and click by something that has neither mouse nor keyboard, such as a screen reader.
    void press();
    // Focus or pointer were taken away: a pressed button is released, without a click.
    void letGo();
    // The button is no longer seen: it is let go, and nothing is watched.
    void gone();
    // One period of the watch.
    void watchTick(bool cursorInside);

    // Events, raised to the form.
    std::function<void()> onClick;
    std::function<void()> onDoubleClick;
    std::function<void(const KeyStroke&)> onKeyDown;
    std::function<void(const KeyStroke&)> onKeyPress;
    std::function<void(const KeyStroke&)> onKeyUp;
    std::function<void()> onMouseOut;
    std::function<void(const MouseStroke&)> onMouseDown;
    std::function<void(const MouseStroke&)> onMouseMove;
    std::function<void(const MouseStroke&)> onMouseUp;

    // Hooks of the view.
    std::function<void()> onRedraw;
    std::function<void(bool on)> onWatch;

  private:
    MouseStroke turned(MouseStroke stroke, ButtonPart part) const;
    bool inside(const MouseStroke& stroke) const;
    bool pressStep(const MouseStroke& stroke);
    void releaseStep(const MouseStroke& stroke);
    void watch(bool on);
    void draw(ButtonState state);
    void redraw() const;
    template <typename Event, typename... Arguments>
    void raise(const Event& event, const Arguments&... arguments) const;

    CommandButtonProperties properties_;
    ButtonState state_ = ButtonState::normal;
    int pressState_ = 0;
    bool watching_ = false;
    bool pointerSeen_ = false;  // over the button since the last onMouseOut
    bool clickDue_ = false;     // the left button went down here
    std::set<std::uint32_t> keysDown_;
    FaceSize control_;
    FaceSize caption_;
    FaceSize icon_;
};

}  // namespace quorrin
