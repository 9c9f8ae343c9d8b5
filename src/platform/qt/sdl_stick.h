// One stick of SDL's: what it reports now, on the scales of joysticks.h, and whether it is still there.
//
// Asks nothing of the machine by itself: SDL_JoystickUpdate() is its owner's business. Owns SDL's handle.
#pragma once

#include <SDL.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/joystick_axis.h"
#include "platform/joysticks.h"

namespace quorrin {

struct StickScales {
    AxisScale x;
    AxisScale y;
    AxisScale slider;
};

class SdlStick {
  public:
    // `stick` is open; it is closed at the end.
    explicit SdlStick(SDL_Joystick* stick);

    int buttonCount() const { return SDL_JoystickNumButtons(stick_.get()); }
    std::vector<std::string> axisTypes() const;
    bool attached() const { return SDL_JoystickGetAttached(stick_.get()) == SDL_TRUE; }

    // From now on it counts what the slider reports.
    void beginReports();
    JoystickState state(const StickScales& scales);

    // It has gone. Afterwards: has one of its kind been plugged in since, and opening that one.
    void lose();
    bool isBack() const { return indexOfNewOne() >= 0; }
    bool openAgain();

  private:
    struct Close {
        void operator()(SDL_Joystick* stick) const { SDL_JoystickClose(stick); }
    };
    int sliderAxis() const;
    int indexOfNewOne() const;

    std::unique_ptr<SDL_Joystick, Close> stick_;
    SDL_JoystickGUID kind_;
    SDL_JoystickID lastAtLoss_ = -1;  // SDL numbers what is plugged in, upwards
    Sint16 firstSlider_ = 0;
    bool sliderMoved_ = false;
};

}  // namespace quorrin
