#include "console/joystick.h"

#include "base/program_error.h"
#include "base/resume_on_error.h"
#include "console/joystick_rules.h"

namespace quorrin {

namespace {

constexpr int kDeadZone = 1000;    // a tenth of the way
constexpr int kSaturation = 9500;  // the outer twentieth counts as full travel
constexpr int kRangeMinimum = 0;   // with the maximum, the scale of the commanded levels
constexpr int kRangeMaximum = 10000;

struct AxisFlags {
    const char* type;
    std::size_t first;
    std::size_t last;
};
constexpr AxisFlags kAxisFlags[] = {
    {"GUID_XAxis", 1, 1},  {"GUID_YAxis", 2, 2},  {"GUID_ZAxis", 3, 3},  {"GUID_RxAxis", 4, 4},
    {"GUID_RyAxis", 5, 5}, {"GUID_RzAxis", 6, 6}, {"GUID_Slider", 7, 8},
};

}  // namespace

Joystick::Joystick(Joysticks* joysticks, PublicValues& values, frmGUI& gui, frmControlPanel& panel)
    : joysticks_(joysticks), values_(values), gui_(gui), panel_(panel) {
    // Remains of a delayed start: nothing ever starts this timer.
    gui_.tmrStartJoystick.setHandler([this] {
        InitDirectInput();
        acquireJoystick();
        gui_.tmrStartJoystick.setRunning(false);
    });
}

Joysticks& Joystick::input() {
    if (joysticks_ == nullptr) throw ProgramError("there is no joystick input");
    return *joysticks_;
}

JoystickDevice& Joystick::device() {
    if (!gui_.diDev) throw ProgramError("there is no joystick");
    return *gui_.diDev;
}

void Joystick::InitDirectInput() {
    resumeOnError([this] { devices_ = input().attached(); },
                  [this] {
                      if (devices_.empty()) return;
                      gui_.joystickEventHandle = input().createEvent(
                          [this](std::int32_t event) { DirectXEvent8_DXCallback(event); });
                  });
}

void Joystick::acquireJoystick() {
    resumeOnError([this] { CLRLISTS(); },  //
                  [this] { gui_.joystickRunning = true; },
                  [this] {
                      if (!gui_.diDev) return;
                      gui_.diDev->unacquire();
                      gui_.diDev.reset();
                  },
                  [this] {
                      if (devices_.empty()) throw ProgramError("no joystick is attached");
                      gui_.diDev = input().open(devices_.front());
                  },
                  [this] { device().useJoystickFormat(); },  //
                  [this] { device().shareInBackground(); },
                  [this] {
                      const int buttons = device().buttonCount();
                      if (buttons >= 0) gui_.lButtons = buttons;
                  },
                  [this] { IdentifyAxes(gui_.diDev.get()); },
                  [this] { device().setEventNotification(gui_.joystickEventHandle.value()); },
                  [this] { device().setDeadZone(JoystickAxis::x, kDeadZone); },
                  [this] { device().setDeadZone(JoystickAxis::y, kDeadZone); },
                  [this] { device().setSaturation(JoystickAxis::x, kSaturation); },
                  [this] { device().setSaturation(JoystickAxis::y, kSaturation); },  //
                  [this] { SetPropRange(); },                                        //
                  [this] { device().acquire(); },                                    //
                  [this] { DirectXEvent8_DXCallback(0); });
}

void Joystick::CLRLISTS() {
    gui_.joystickRunning = false;
    if (gui_.diDev) gui_.diDev->unacquire();
}

void Joystick::SetPropRange() {
    resumeOnError([this] { device().setRange(kRangeMinimum, kRangeMaximum); });
}

void Joystick::IdentifyAxes(JoystickDevice* device) {
    gui_.AxisPresent.fill(false);
    if (device == nullptr) return;
    for (const std::string& type : device->axisTypes()) {
        for (const AxisFlags& flags : kAxisFlags) {
            if (type != flags.type) continue;
            gui_.AxisPresent[flags.first] = true;
            gui_.AxisPresent[flags.last] = true;
        }
    }
}

// False where the device had to be acquired anew. What cannot be read otherwise stays as it was.
bool Joystick::readState() {
    const JoystickRead outcome = gui_.diDev->read(gui_.joystickState);
    if (outcome != JoystickRead::notAcquired && outcome != JoystickRead::inputLost) return true;
    gui_.diDev->acquire();
    return false;
}

void Joystick::DirectXEvent8_DXCallback(std::int32_t /*eventid*/) {
    if (!gui_.diDev || !readState()) return;
    const JoystickState& stick = gui_.joystickState;
    resumeOnError(
        [&] {
            if (!takesOver(stick)) return;
            values_.joystickActive = true;
            if (!values_.manualPanelActive) return;
            values_.manualPanelActive = false;
            panel_.hide();
            gui_.cmdShowControlPanel.setCaption("Show Control");
        },
        [&] {
            if (givesBack(stick)) values_.joystickActive = false;
        },
        [&] {
            if (!values_.joystickActive) return;
            commandLevels(stick, values_);
            panel_.slbGasLevel.setCaption(std::to_string(values_.gasLevel.value()));
        },
        [&] { centreHead(stick, values_); },     //
        [&] { flipAvoidance(stick, values_); },  //
        [&] { moveMouth(stick, values_); },      //
        [&] { moveHead(stick, values_); },       //
        [&] {
            if (values_.joystickActive) chooseGear(stick, gui_.lButtons.value(), values_);
        });
}

}  // namespace quorrin
