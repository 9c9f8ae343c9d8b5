#include "platform/qt/sdl_joysticks.h"

#include <SDL.h>

#include <algorithm>
#include <utility>

#include "platform/qt/sdl_stick.h"

namespace quorrin {

namespace {
constexpr std::int64_t kPollMs = 10;
}

// One stick that has been opened. Its changes are noticed by look(), and reach the program in turn.
class SdlJoysticks::Device : public JoystickDevice {
  public:
    Device(SdlJoysticks& all, SDL_Joystick* stick) : all_(all), stick_(stick) {}
    ~Device() override { all_.watch(*this, false); }

    bool useJoystickFormat() override { return true; }
    bool shareInBackground() override { return true; }
    int buttonCount() override { return stick_.buttonCount(); }
    std::vector<std::string> axisTypes() override { return stick_.axisTypes(); }
    bool setEventNotification(std::int32_t event) override {
        event_ = event;
        return event > 0 && event <= static_cast<std::int32_t>(all_.events_.size());
    }
    bool setDeadZone(JoystickAxis axis, int tenThousandths) override {
        scaleOf(axis).deadZone = tenThousandths;
        return true;
    }
    bool setSaturation(JoystickAxis axis, int tenThousandths) override {
        scaleOf(axis).saturation = tenThousandths;
        return true;
    }
    bool setRange(int minimum, int maximum) override {
        for (AxisScale* scale : {&scales_.x, &scales_.y, &scales_.slider}) {
            scale->minimum = minimum;
            scale->maximum = maximum;
        }
        return true;
    }
    bool acquire() override;
    void unacquire() override {
        all_.watch(*this, false);
        acquired_ = false;
        source_ = std::make_unique<EventSource>();
    }
    JoystickRead read(JoystickState& state) override {
        if (!acquired_) return JoystickRead::notAcquired;
        if (shownLost_) return JoystickRead::inputLost;
        state = shown_;
        return JoystickRead::done;
    }

    // SDL has been asked: is there something to tell?
    void look();

  private:
    AxisScale& scaleOf(JoystickAxis axis) { return axis == JoystickAxis::x ? scales_.x : scales_.y; }
    void tellLost();

    SdlJoysticks& all_;
    SdlStick stick_;
    StickScales scales_;
    std::int32_t event_ = 0;
    bool acquired_ = false;
    bool known_ = false;     // has been acquired once
    JoystickState noticed_;  // the last state that an event was made of
    bool lost_ = false;
    bool back_ = false;
    // What the program knows: it runs behind by the events under way.
    JoystickState shown_;
    bool shownLost_ = false;
    std::unique_ptr<EventSource> source_ = std::make_unique<EventSource>();
};

bool SdlJoysticks::Device::acquire() {
    all_.update();
    if (!stick_.attached()) {
        if (!lost_) stick_.lose();
        if (!stick_.openAgain()) return false;
    }
    if (!acquired_ || lost_) stick_.beginReports();
    // What is under way is of the time before the loss.
    if (lost_) source_ = std::make_unique<EventSource>();
    acquired_ = true;
    lost_ = false;
    shownLost_ = false;
    // Afterwards a state counts as a change by what the program knows of it, also from before a loss.
    if (!known_) noticed_ = shown_ = stick_.state(scales_);
    known_ = true;
    all_.watch(*this, true);
    return true;
}

void SdlJoysticks::Device::look() {
    if (lost_) {
        const bool back = stick_.isBack();
        if (back && !back_) tellLost();
        back_ = back;
        return;
    }
    if (!stick_.attached()) {
        stick_.lose();
        lost_ = true;
        back_ = false;
        tellLost();
        return;
    }
    const JoystickState state = stick_.state(scales_);
    if (state == noticed_) return;
    noticed_ = state;
    all_.session_.arrive(
        [this, state] {
            shown_ = state;
            all_.tell(event_);
        },
        source_.get());
}

void SdlJoysticks::Device::tellLost() {
    all_.session_.arrive(
        [this] {
            shownLost_ = true;
            all_.tell(event_);
        },
        source_.get());
}

SdlJoysticks::SdlJoysticks(Clock& host, Clock& session) : session_(session), poll_(host, [this] { look(); }) {
    poll_.setName("joysticks");
    poll_.setInterval(kPollMs);
}

SdlJoysticks::~SdlJoysticks() {
    if (ready_) SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
}

bool SdlJoysticks::ready() {
    if (begun_) return ready_;
    begun_ = true;
    SDL_SetMainReady();
    // Before what the environment says.
    const auto hint = [](const char* name, const char* value) {
        SDL_SetHintWithPriority(name, value, SDL_HINT_OVERRIDE);
    };
    hint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    hint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    // SDL's own USB drivers would take devices away from the system's.
    hint(SDL_HINT_JOYSTICK_HIDAPI, "0");
    ready_ = SDL_InitSubSystem(SDL_INIT_JOYSTICK) == 0;
    return ready_;
}

// Nobody takes SDL's own events, so they go.
void SdlJoysticks::update() const {
    SDL_JoystickUpdate();
    SDL_FlushEvents(SDL_JOYAXISMOTION, SDL_CONTROLLERSENSORUPDATE);
}

void SdlJoysticks::watch(Device& device, bool acquired) {
    acquired_.erase(std::remove(acquired_.begin(), acquired_.end(), &device), acquired_.end());
    if (acquired) acquired_.push_back(&device);
    poll_.setEnabled(!acquired_.empty());
}

void SdlJoysticks::look() {
    update();
    for (Device* device : acquired_) device->look();
}

void SdlJoysticks::tell(std::int32_t event) {
    if (event < 1 || event > static_cast<std::int32_t>(events_.size())) return;
    const auto handler = events_[static_cast<std::size_t>(event) - 1];
    handler(event);
}

std::vector<std::string> SdlJoysticks::attached() {
    std::vector<std::string> all;
    if (!ready()) return all;
    update();
    for (int i = 0; i < SDL_NumJoysticks(); ++i)
        all.push_back(std::to_string(SDL_JoystickGetDeviceInstanceID(i)));
    return all;
}

std::int32_t SdlJoysticks::createEvent(std::function<void(std::int32_t event)> handler) {
    events_.push_back(std::move(handler));
    return static_cast<std::int32_t>(events_.size());
}

std::unique_ptr<JoystickDevice> SdlJoysticks::open(const std::string& identifier) {
    if (!ready()) return nullptr;
    for (int i = 0; i < SDL_NumJoysticks(); ++i) {
        if (std::to_string(SDL_JoystickGetDeviceInstanceID(i)) != identifier) continue;
        SDL_Joystick* stick = SDL_JoystickOpen(i);
        return stick == nullptr ? nullptr : std::make_unique<Device>(*this, stick);
    }
    return nullptr;
}

}  // namespace quorrin
