// Joysticks as the station meets them: a list of what is attached, one that is opened and acquired, its whole
// state, and an event on each change of it.
//
// Scales: an axis runs from 0 to 10000 with 5000 in the middle, the slider likewise, the hat is in hundredths
// of a degree (0 up, 9000 right) or -1 where it is centred, and there are 32 buttons, of which a device may
// have fewer: those that it lacks are never down.
//
// A device tells its state only while it is acquired. Changes are told one event for each batch of reports in
// which the state differs from the last one told; the event comes in turn with everything else that happens,
// and a read inside it gives the state that it tells of. A device that is pulled out tells so by one event
// more, in which the read fails; it can be acquired again when it is back.
//
// Errors: a call that fails says so by what it returns and changes nothing. Nothing is thrown.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quorrin {

constexpr int kJoystickButtons = 32;
constexpr int kHatCentred = -1;

// As a stick rests.
struct JoystickState {
    int x = 5000;
    int y = 5000;
    int slider = 10000;
    int pov = kHatCentred;
    std::array<bool, kJoystickButtons> buttons{};

    bool operator==(const JoystickState&) const = default;
};

enum class JoystickRead {
    done,
    notAcquired,  // acquire() first
    inputLost,    // the device has gone
    failed,
};

// The axes whose dead zone and saturation can be set.
enum class JoystickAxis { x, y };

class JoystickDevice {
  public:
    JoystickDevice() = default;
    JoystickDevice(const JoystickDevice&) = delete;
    JoystickDevice& operator=(const JoystickDevice&) = delete;
    virtual ~JoystickDevice() = default;

    // Reports as a joystick: axes, slider, hat and 32 buttons.
    virtual bool useJoystickFormat() = 0;
    // Goes on while another window has the focus, and leaves the device to other programs too.
    virtual bool shareInBackground() = 0;
    // How many buttons the device has; -1 where that cannot be told.
    virtual int buttonCount() = 0;
    // The types of its axes, in its own order: "GUID_XAxis", "GUID_Slider" and so on.
    virtual std::vector<std::string> axisTypes() = 0;
    // Changes are told by that event; one of Joysticks::createEvent().
    virtual bool setEventNotification(std::int32_t event) = 0;
    // How far the stick may be from the middle, in ten-thousandths of half the way, and still count as there;
    // and from where on it counts as being at the end.
    virtual bool setDeadZone(JoystickAxis axis, int tenThousandths) = 0;
    virtual bool setSaturation(JoystickAxis axis, int tenThousandths) = 0;
    // The ends of all axes.
    virtual bool setRange(int minimum, int maximum) = 0;
    virtual bool acquire() = 0;
    virtual void unacquire() = 0;
    virtual JoystickRead read(JoystickState& state) = 0;
};

class Joysticks {
  public:
    Joysticks() = default;
    Joysticks(const Joysticks&) = delete;
    Joysticks& operator=(const Joysticks&) = delete;
    virtual ~Joysticks() = default;

    // The identifiers of what is attached now, in the host's order.
    virtual std::vector<std::string> attached() = 0;
    // Makes a change event; its number is never 0. The handler gets that number.
    virtual std::int32_t createEvent(std::function<void(std::int32_t event)> handler) = 0;
    // Null where it cannot be opened. The device must not outlive this.
    virtual std::unique_ptr<JoystickDevice> open(const std::string& identifier) = 0;
};

}  // namespace quorrin
