#include "platform/virtual/scripted_joysticks.h"

#include <utility>

namespace quorrin {

class ScriptedJoysticks::Device : public JoystickDevice {
  public:
    Device(ScriptedJoysticks& all, Stick& stick) : all_(all), stick_(stick) { stick_.opened = this; }
    ~Device() override {
        if (stick_.opened == this) stick_.opened = nullptr;
    }

    bool useJoystickFormat() override { return all_.call("useJoystickFormat"); }
    bool shareInBackground() override { return all_.call("shareInBackground"); }
    int buttonCount() override { return all_.call("buttonCount") ? stick_.buttons : -1; }
    std::vector<std::string> axisTypes() override {
        return all_.call("axisTypes") ? stick_.axisTypes : std::vector<std::string>{};
    }
    bool setEventNotification(std::int32_t event) override {
        if (!all_.call("setEventNotification", std::to_string(event))) return false;
        event_ = event;
        return true;
    }
    bool setDeadZone(JoystickAxis axis, int tenThousandths) override {
        return all_.call("setDeadZone", text(axis, tenThousandths));
    }
    bool setSaturation(JoystickAxis axis, int tenThousandths) override {
        return all_.call("setSaturation", text(axis, tenThousandths));
    }
    bool setRange(int minimum, int maximum) override {
        return all_.call("setRange", std::to_string(minimum) + " " + std::to_string(maximum));
    }
    bool acquire() override {
        if (!all_.call("acquire") || !stick_.pluggedIn) return false;
        acquired_ = true;
        lost_ = false;
        return true;
    }
    void unacquire() override {
        all_.call("unacquire");
        acquired_ = false;
    }
    JoystickRead read(JoystickState& state) override {
        if (!all_.call("read")) return JoystickRead::failed;
        if (lost_) return JoystickRead::inputLost;
        if (!acquired_) return JoystickRead::notAcquired;
        state = stick_.state;
        return JoystickRead::done;
    }

    void changed() {
        if (acquired_ && !lost_) all_.tell(event_);
    }
    void pulledOut() {
        if (!acquired_ || lost_) return;
        lost_ = true;
        all_.tell(event_);
    }
    void backAgain() {
        if (lost_) all_.tell(event_);
    }

  private:
    static std::string text(JoystickAxis axis, int value) {
        return (axis == JoystickAxis::x ? "x " : "y ") + std::to_string(value);
    }

    ScriptedJoysticks& all_;
    Stick& stick_;
    std::int32_t event_ = 0;
    bool acquired_ = false;
    bool lost_ = false;
};

ScriptedJoysticks::~ScriptedJoysticks() = default;

bool ScriptedJoysticks::call(const std::string& name, const std::string& arguments) {
    if (onCall) onCall(arguments.empty() ? name : name + " " + arguments);
    return failing.count(name) == 0;
}

void ScriptedJoysticks::attach(int buttons, std::vector<std::string> axisTypes) {
    auto stick = std::make_unique<Stick>();
    stick->identifier = "stick" + std::to_string(sticks_.size());
    stick->buttons = buttons;
    stick->axisTypes = std::move(axisTypes);
    sticks_.push_back(std::move(stick));
}

void ScriptedJoysticks::move(const JoystickState& state, std::size_t stick) {
    Stick& moved = *sticks_.at(stick);
    JoystickState now = state;
    for (int i = moved.buttons; i < kJoystickButtons; ++i) now.buttons[static_cast<std::size_t>(i)] = false;
    if (now == moved.state) return;
    moved.state = now;
    if (moved.opened != nullptr) moved.opened->changed();
}

void ScriptedJoysticks::setPluggedIn(bool pluggedIn, std::size_t stick) {
    Stick& changed = *sticks_.at(stick);
    if (changed.pluggedIn == pluggedIn) return;
    changed.pluggedIn = pluggedIn;
    if (changed.opened == nullptr) return;
    if (pluggedIn) {
        changed.opened->backAgain();
    } else {
        changed.opened->pulledOut();
    }
}

std::vector<std::string> ScriptedJoysticks::attached() {
    std::vector<std::string> all;
    if (!call("attached")) return all;
    for (const auto& stick : sticks_) {
        if (stick->pluggedIn) all.push_back(stick->identifier);
    }
    return all;
}

std::int32_t ScriptedJoysticks::createEvent(std::function<void(std::int32_t event)> handler) {
    if (!call("createEvent")) return 0;
    events_.push_back(std::move(handler));
    return static_cast<std::int32_t>(events_.size());
}

std::unique_ptr<JoystickDevice> ScriptedJoysticks::open(const std::string& identifier) {
    if (!call("open", identifier)) return nullptr;
    for (const auto& stick : sticks_) {
        if (stick->identifier == identifier && stick->pluggedIn)
            return std::make_unique<Device>(*this, *stick);
    }
    return nullptr;
}

void ScriptedJoysticks::tell(std::int32_t event) {
    if (event < 1 || event > static_cast<std::int32_t>(events_.size())) return;
    const auto handler = events_[static_cast<std::size_t>(event) - 1];
    handler(event);
}

}  // namespace quorrin
