#include "client/stick_watch.h"

namespace quorrin {

namespace {

constexpr int kDeadZone = 1000;    // a tenth of the way
constexpr int kSaturation = 9500;  // the outer twentieth counts as full travel
constexpr int kRangeMaximum = 10000;

}  // namespace

StickWatch::StickWatch(Clock& clock, Joysticks& joysticks)
    : joysticks_(joysticks), timer_(clock, [this] { search(); }) {
    timer_.setInterval(kSearchMs);
}

void StickWatch::start() {
    if (event_ == 0) event_ = joysticks_.createEvent([this](std::int32_t) { changed(); });
    timer_.setEnabled(true);
    search();
}

void StickWatch::search() {
    if (present_) return;
    // The one that was lost; not before now, as its own event told of the loss.
    device_.reset();
    for (const std::string& identifier : joysticks_.attached()) {
        if (take(identifier)) break;
    }
    timer_.setEnabled(!present_);
}

bool StickWatch::take(const std::string& identifier) {
    device_ = joysticks_.open(identifier);
    if (!device_) return false;
    device_->useJoystickFormat();
    device_->shareInBackground();
    device_->setEventNotification(event_);
    for (const JoystickAxis axis : {JoystickAxis::x, JoystickAxis::y}) {
        device_->setDeadZone(axis, kDeadZone);
        device_->setSaturation(axis, kSaturation);
    }
    device_->setRange(0, kRangeMaximum);
    JoystickState state;
    present_ = device_->acquire() && device_->read(state) == JoystickRead::done;
    if (!present_) {
        device_.reset();
    } else if (onState) {
        onState(state);
    }
    return present_;
}

void StickWatch::changed() {
    if (!present_) return;
    JoystickState state;
    if (device_->read(state) == JoystickRead::done) {
        if (onState) onState(state);
        return;
    }
    present_ = false;
    timer_.setEnabled(true);
    if (onLost) onLost();
}

}  // namespace quorrin
