// Joysticks without hardware: sticks that a script or a test attaches, moves and pulls out.
//
// Their states are given on the scales of joysticks.h; the properties that a program sets are kept for
// whoever looks, and scale nothing. An event is told at once, inside the call that changed the state. Calls
// can be made to fail.
#pragma once

#include <set>

#include "platform/joysticks.h"

namespace quorrin {

class ScriptedJoysticks : public Joysticks {
  public:
    ~ScriptedJoysticks() override;

    // A stick that rests, with that many buttons, behind those that are there; its identifier is "stick0",
    // "stick1" and so on.
    void attach(int buttons = 12,
                std::vector<std::string> axisTypes = {"GUID_XAxis", "GUID_YAxis", "GUID_Slider"});
    // Puts the stick of that place in the order of attaching into a state. Buttons that it lacks stay up.
    void move(const JoystickState& state, std::size_t stick = 0);
    // Pulls the stick out, or puts it back.
    void setPluggedIn(bool pluggedIn, std::size_t stick = 0);

    std::vector<std::string> attached() override;
    std::int32_t createEvent(std::function<void(std::int32_t event)> handler) override;
    std::unique_ptr<JoystickDevice> open(const std::string& identifier) override;

    // Each call of the port and of its devices, with arguments: "setDeadZone x 1000". Before it has effect.
    std::function<void(const std::string& call)> onCall;
    // The names of calls that fail from now on: "acquire". A read that fails gives JoystickRead::failed.
    std::set<std::string> failing;

  private:
    class Device;
    struct Stick {
        std::string identifier;
        int buttons = 0;
        std::vector<std::string> axisTypes;
        JoystickState state;
        bool pluggedIn = true;
        Device* opened = nullptr;
    };

    // Notes the call; false when it is to fail.
    bool call(const std::string& name, const std::string& arguments = "");
    void tell(std::int32_t event);

    std::vector<std::unique_ptr<Stick>> sticks_;
    std::vector<std::function<void(std::int32_t)>> events_;
};

}  // namespace quorrin
