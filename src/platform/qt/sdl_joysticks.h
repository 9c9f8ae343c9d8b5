// The machine's joysticks through SDL2, its joystick part only: no window, no video, no sound, no signal
// handlers. Sticks work whichever window has the focus, and other programs can read them too.
//
// Axis 0 is x, axis 1 y, the last one from the third on the slider, hat 0 the hat. The slider counts as at
// its far end (no gas) until it has moved since the device was acquired, as some drivers tell zero for what
// they do not know yet.
//
// SDL is asked every 10 ms by a timer of the host's clock, and only while a device is acquired. What has
// changed then becomes one event of the session's clock, with the state as it was then. A stick that was
// pulled out is known again, by its kind, when one is plugged in later.
//
// One thread. Both clocks must outlive it, and it the devices. Errors: none; without SDL nothing is attached.
#pragma once

#include "platform/clock.h"
#include "platform/joysticks.h"
#include "platform/timer_mm.h"

namespace quorrin {

class SdlJoysticks : public Joysticks {
  public:
    SdlJoysticks(Clock& host, Clock& session);
    ~SdlJoysticks() override;

    std::vector<std::string> attached() override;
    std::int32_t createEvent(std::function<void(std::int32_t event)> handler) override;
    std::unique_ptr<JoystickDevice> open(const std::string& identifier) override;

    // Is SDL being asked?
    bool polling() const { return poll_.enabled(); }

  private:
    class Device;
    bool ready();
    void update() const;
    void watch(Device& device, bool acquired);
    void look();
    void tell(std::int32_t event);

    Clock& session_;
    TimerMM poll_;
    bool begun_ = false;
    bool ready_ = false;
    std::vector<Device*> acquired_;
    std::vector<std::function<void(std::int32_t)>> events_;
};

}  // namespace quorrin
