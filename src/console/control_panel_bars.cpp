// The control panel's scroll bars, each a mirror of one level, and its buttons, which move the bars by
// clamped steps. A button never writes a level itself, so that the joystick's gate holds for it, too.
#include <algorithm>

#include "console/control_panel.h"

namespace quorrin {

namespace {

constexpr int kGasStep = 500;
constexpr int kStep = 100;
constexpr int kMouthShut = 2650;  // mouthCmd with scrMouthUD at 0
constexpr int kHeadTop = 3500;

// The tests stop short of some ends, which are then reached with the bar itself only.
void stepUp(Slider& bar, int below) {
    if (bar.value() < below) bar.setValue(bar.value() + kStep);
}
void stepDown(Slider& bar) {
    if (bar.value() >= kStep + 1) bar.setValue(bar.value() - kStep);
}

}  // namespace

void ControlPanel::bindBars() {
    // With the joystick in charge the bars move and change nothing.
    const auto gated = [this](const auto& effect) {
        return [this, effect] {
            if (!resetting_ && !values_.joystickActive) effect();
        };
    };
    panel_.scrGas.onChange = gated([this] {
        values_.gasLevel = panel_.scrGas.value();
        panel_.slbGasLevel.setCaption(std::to_string(panel_.scrGas.value()));
    });
    panel_.scrBrake.onChange = gated([this] { values_.brakeLevel = panel_.scrBrake.value(); });
    panel_.scrHeadUD.onChange = gated([this] {
        values_.headCmdUpDown = panel_.scrHeadUD.value();
        panel_.sldUD.setValue(std::max(0, kHeadTop - panel_.scrHeadUD.value()));
    });
    panel_.hscHeadLR.onChange = gated([this] {
        values_.headCmdLeftRight = panel_.hscHeadLR.value();
        panel_.sldLR.setValue(panel_.hscHeadLR.value());
    });
    panel_.scrMouthUD.onChange = gated([this] { values_.mouthCmd = panel_.scrMouthUD.value() + kMouthShut; });
    // Steering alone is not gated: it holds until the next event of the stick.
    panel_.hscSteering.onChange = [this] {
        if (!resetting_) values_.steeringLevel = panel_.hscSteering.value();
    };
}

void ControlPanel::bindButtons() {
    panel_.cmdGasUp.onClick = [this] { cmdGasUp_Click(); };
    panel_.cmdGasDown.onClick = [this] { cmdGasDown_Click(); };
    panel_.cmdBrake.onClick = [this] { cmdBrake_Click(); };

    const auto steer = [this](int value) { return [this, value] { panel_.hscSteering.setValue(value); }; };
    panel_.cmdTurnLeft.onMouseDown = steer(4500);
    panel_.cmdTurnRight.onMouseDown = steer(5500);
    panel_.cmdTurnLeft.onMouseUp = panel_.cmdTurnRight.onMouseUp = steer(5000);

    panel_.cmdHeadUp.onClick = [this] { stepUp(panel_.scrHeadUD, 3400); };
    panel_.cmdHeadDown.onClick = [this] { stepDown(panel_.scrHeadUD); };
    panel_.cmdHeadLeft.onClick = [this] { stepDown(panel_.hscHeadLR); };
    panel_.cmdHeadRight.onClick = [this] { stepUp(panel_.hscHeadLR, 3900); };
    // The mouth opens with a growing value.
    panel_.cmdMouthUp.onClick = [this] { stepDown(panel_.scrMouthUD); };
    panel_.cmdMouthDown.onClick = [this] { stepUp(panel_.scrMouthUD, 1100); };
    panel_.cmdReset.onClick = [this] {
        panel_.hscHeadLR.setValue(2000);
        panel_.scrHeadUD.setValue(2000);
    };
}

// More gas is a lower value.
void ControlPanel::cmdGasUp_Click() {
    panel_.scrBrake.setValue(10000);
    if (panel_.scrGas.value() >= kGasStep) panel_.scrGas.setValue(panel_.scrGas.value() - kGasStep);
}

void ControlPanel::cmdGasDown_Click() {
    if (panel_.scrGas.value() < 9501) panel_.scrGas.setValue(panel_.scrGas.value() + kGasStep);
}

void ControlPanel::cmdBrake_Click() {
    panel_.scrBrake.setValue(0);
    panel_.scrGas.setValue(10000);
    panel_.hscSteering.setValue(5000);
}

}  // namespace quorrin
