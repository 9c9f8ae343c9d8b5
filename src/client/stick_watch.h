// The joystick of a client: the first that is attached, found whenever it is plugged in, and what it says.
//
// Only tells; what the stick means is drive_keys.h's. While there is none it looks for one each kSearchMs,
// also for the one that was pulled out. Dead zone and saturation are those of the station's own stick.
//
// Clock and joysticks must outlive it. Errors: a stick that cannot be opened or acquired is not there.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/joysticks.h"
#include "platform/timer_mm.h"

namespace quorrin {

class StickWatch {
  public:
    static constexpr std::int64_t kSearchMs = 2000;

    StickWatch(Clock& clock, Joysticks& joysticks);
    StickWatch(const StickWatch&) = delete;
    StickWatch& operator=(const StickWatch&) = delete;

    // Looks for one at once, and from then on.
    void start();
    bool present() const { return present_; }

    // Its state now, on each change and when it was found.
    std::function<void(const JoystickState&)> onState;
    std::function<void()> onLost;

  private:
    void search();
    bool take(const std::string& identifier);
    void changed();

    Joysticks& joysticks_;
    std::int32_t event_ = 0;
    std::unique_ptr<JoystickDevice> device_;
    bool present_ = false;
    TimerMM timer_;
};

}  // namespace quorrin
