#include "session/recorded_joysticks.h"

#include <utility>

#include "base/json_text.h"

namespace quorrin {

namespace {

void appendMember(std::string& out, const char* key, int value) {
    out += std::string("\"") + key + "\": ";
    appendWhole(out, value);
}

// Without `buttons` the number of buttons is left out.
std::string joystickMembers(const JoystickState& state, std::optional<int> buttons) {
    std::string out = "\"joystick\": {";
    appendMember(out, "x", state.x);
    out += ", ";
    appendMember(out, "y", state.y);
    out += ", ";
    appendMember(out, "slider", state.slider);
    out += ", ";
    appendMember(out, "pov", state.pov);
    out += ", \"buttons\": [";
    bool first = true;
    for (int i = 0; i < kJoystickButtons; ++i) {
        if (!state.buttons[static_cast<std::size_t>(i)]) continue;
        if (!first) out += ", ";
        first = false;
        appendWhole(out, i);
    }
    out += ']';
    if (buttons) {
        out += ", ";
        appendMember(out, "lButtons", *buttons);
    }
    return out + "}";
}

}  // namespace

class RecordedJoysticks::Device : public JoystickDevice {
  public:
    Device(RecordedJoysticks& all, std::unique_ptr<JoystickDevice> inner)
        : all_(all), inner_(std::move(inner)) {}

    bool useJoystickFormat() override { return inner_->useJoystickFormat(); }
    bool shareInBackground() override { return inner_->shareInBackground(); }
    int buttonCount() override { return inner_->buttonCount(); }
    std::vector<std::string> axisTypes() override { return inner_->axisTypes(); }
    bool setEventNotification(std::int32_t event) override { return inner_->setEventNotification(event); }
    bool setDeadZone(JoystickAxis axis, int tenThousandths) override {
        return inner_->setDeadZone(axis, tenThousandths);
    }
    bool setSaturation(JoystickAxis axis, int tenThousandths) override {
        return inner_->setSaturation(axis, tenThousandths);
    }
    bool setRange(int minimum, int maximum) override { return inner_->setRange(minimum, maximum); }
    bool acquire() override { return inner_->acquire(); }
    void unacquire() override { inner_->unacquire(); }
    JoystickRead read(JoystickState& state) override {
        const JoystickRead outcome = inner_->read(state);
        if (outcome == JoystickRead::done) all_.note(state, inner_->buttonCount());
        return outcome;
    }

  private:
    RecordedJoysticks& all_;
    std::unique_ptr<JoystickDevice> inner_;
};

std::int32_t RecordedJoysticks::createEvent(std::function<void(std::int32_t event)> handler) {
    return inner_.createEvent([this, handler = std::move(handler)](std::int32_t event) {
        struct Mark {
            explicit Mark(bool& marked) : flag(marked) { flag = true; }
            ~Mark() { flag = false; }
            bool& flag;
        } const mark(inEvent_);
        handler(event);
    });
}

std::unique_ptr<JoystickDevice> RecordedJoysticks::open(const std::string& identifier) {
    auto device = inner_.open(identifier);
    if (!device) return nullptr;
    return std::make_unique<Device>(*this, std::move(device));
}

void RecordedJoysticks::note(const JoystickState& state, int buttons) {
    if (written_ == state) return;
    const std::string members =
        joystickMembers(state, written_ || buttons < 0 ? std::nullopt : std::optional(buttons));
    written_ = state;
    if (inEvent_) {
        recorder_.line(members);
    } else {
        recorder_.lineBefore(members);
    }
}

}  // namespace quorrin
