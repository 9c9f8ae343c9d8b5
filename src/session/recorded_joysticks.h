// Joysticks whose states are written down as the station reads them; everything else passes through.
//
// A read inside a change event is a line of that event. The state that is read when a device is opened is not
// told by any event: it is written with the time of what led to it and stands before it, since a replay's
// stick has its state before it is opened. It is written also where the stick rests, so that the replay has a
// stick. What fails is not written: it changes nothing.
#pragma once

#include <optional>

#include "platform/joysticks.h"
#include "session/flight_recorder.h"

namespace quorrin {

class RecordedJoysticks : public Joysticks {
  public:
    // Both must outlive it, and it the devices that it opens.
    RecordedJoysticks(Joysticks& inner, FlightRecorder& recorder) : inner_(inner), recorder_(recorder) {}

    std::vector<std::string> attached() override { return inner_.attached(); }
    std::int32_t createEvent(std::function<void(std::int32_t event)> handler) override;
    std::unique_ptr<JoystickDevice> open(const std::string& identifier) override;

  private:
    class Device;
    void note(const JoystickState& state, int buttons);

    Joysticks& inner_;
    FlightRecorder& recorder_;
    std::optional<JoystickState> written_;  // the last line's
    bool inEvent_ = false;
};

}  // namespace quorrin
