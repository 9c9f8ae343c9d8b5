#include "platform/qt/sdl_stick.h"

#include <algorithm>
#include <cstring>

namespace quorrin {

namespace {

constexpr int kFirstSlider = 2;

int povOf(Uint8 hat) {
    switch (hat) {
        case SDL_HAT_UP:
            return 0;
        case SDL_HAT_RIGHTUP:
            return 4500;
        case SDL_HAT_RIGHT:
            return 9000;
        case SDL_HAT_RIGHTDOWN:
            return 13500;
        case SDL_HAT_DOWN:
            return 18000;
        case SDL_HAT_LEFTDOWN:
            return 22500;
        case SDL_HAT_LEFT:
            return 27000;
        case SDL_HAT_LEFTUP:
            return 31500;
        default:
            return kHatCentred;
    }
}

}  // namespace

SdlStick::SdlStick(SDL_Joystick* stick) : stick_(stick), kind_(SDL_JoystickGetGUID(stick)) {}

int SdlStick::sliderAxis() const {
    const int last = SDL_JoystickNumAxes(stick_.get()) - 1;
    return last >= kFirstSlider ? last : -1;
}

// SDL tells no types, so those between y and the slider get theirs by their order.
std::vector<std::string> SdlStick::axisTypes() const {
    static const std::vector<std::string> byOrder = {"GUID_XAxis",  "GUID_YAxis",  "GUID_ZAxis",
                                                     "GUID_RxAxis", "GUID_RyAxis", "GUID_RzAxis"};
    const int count = std::max(SDL_JoystickNumAxes(stick_.get()), 0);
    const int slider = sliderAxis();
    std::vector<std::string> types;
    for (int i = 0; i < count; ++i) {
        const auto place = static_cast<std::size_t>(i);
        types.push_back(i == slider              ? "GUID_Slider"
                        : place < byOrder.size() ? byOrder[place]
                                                 : "GUID_Unknown");
    }
    return types;
}

void SdlStick::beginReports() {
    const int slider = sliderAxis();
    firstSlider_ = slider < 0 ? Sint16{0} : SDL_JoystickGetAxis(stick_.get(), slider);
    sliderMoved_ = false;
}

JoystickState SdlStick::state(const StickScales& scales) {
    SDL_Joystick* stick = stick_.get();
    JoystickState state;
    // An axis that is not there reads 0, the middle.
    state.x = scaledAxis(SDL_JoystickGetAxis(stick, 0), scales.x);
    state.y = scaledAxis(SDL_JoystickGetAxis(stick, 1), scales.y);
    state.slider = scales.slider.maximum;
    if (const int slider = sliderAxis(); slider >= 0) {
        const Sint16 raw = SDL_JoystickGetAxis(stick, slider);
        sliderMoved_ = sliderMoved_ || raw != firstSlider_;
        if (sliderMoved_) state.slider = scaledSlider(raw, scales.slider);
    }
    if (SDL_JoystickNumHats(stick) > 0) state.pov = povOf(SDL_JoystickGetHat(stick, 0));
    const int buttons = std::min(buttonCount(), kJoystickButtons);
    for (int i = 0; i < buttons; ++i)
        state.buttons[static_cast<std::size_t>(i)] = SDL_JoystickGetButton(stick, i) != 0;
    return state;
}

void SdlStick::lose() {
    lastAtLoss_ = SDL_JoystickInstanceID(stick_.get());
    for (int i = 0; i < SDL_NumJoysticks(); ++i)
        lastAtLoss_ = std::max(lastAtLoss_, SDL_JoystickGetDeviceInstanceID(i));
}

int SdlStick::indexOfNewOne() const {
    for (int i = 0; i < SDL_NumJoysticks(); ++i) {
        const SDL_JoystickGUID kind = SDL_JoystickGetDeviceGUID(i);
        if (std::memcmp(&kind, &kind_, sizeof kind) == 0 && SDL_JoystickGetDeviceInstanceID(i) > lastAtLoss_)
            return i;
    }
    return -1;
}

bool SdlStick::openAgain() {
    const int index = indexOfNewOne();
    SDL_Joystick* stick = index < 0 ? nullptr : SDL_JoystickOpen(index);
    if (stick == nullptr) return false;
    stick_.reset(stick);
    return true;
}

}  // namespace quorrin
