#include "console/control_panel.h"

#include "base/rounding.h"
#include "navigation/teleoperation.h"
#include "robotlink/gesture.h"

namespace quorrin {

namespace {
constexpr int kNoGas = 10000;
constexpr int kReleased = 10000;
constexpr int kStraight = 5000;
}  // namespace

ControlPanel::ControlPanel(Clock& clock, PublicValues& values, frmGUI& gui, frmControlPanel& panel,
                           DragState& drag, QuorrinSDK& myRobot)
    : clock_(clock), values_(values), gui_(gui), panel_(panel), drag_(clock, panel, drag), myRobot_(myRobot) {
    bindLife();
    bindBars();
    bindButtons();
    bindKeys();
}

void ControlPanel::bindLife() {
    gui_.cmdShowControlPanel.onClick = [this] { cmdShowControlPanel_Click(); };
    panel_.cmdClose.onClick = [this] { cmdClose_Click(); };
    panel_.onActivate = [this] { Form_Activate(); };
    panel_.onClose = [this] { Form_Unload(); };
}

void ControlPanel::cmdShowControlPanel_Click() {
    if (gui_.cmdShowControlPanel.caption() == "Show Control") {
        gui_.cmdShowControlPanel.setCaption("Hide Control");
        values_.manualPanelActive = true;
        if (!loaded_) Form_Load();
        panel_.show();
        values_.gasLevel = kNoGas;
        values_.brakeLevel = kReleased;
        values_.steeringLevel = kStraight;
        panel_.slbGasLevel.setCaption(std::to_string(kNoGas));
        values_.joystickDriveLatch = false;
    } else {
        gui_.cmdShowControlPanel.setCaption("Show Control");
        values_.manualPanelActive = false;
        panel_.hide();
        values_.joystickDriveLatch = true;
    }
}

void ControlPanel::cmdClose_Click() {
    values_.manualPanelActive = false;
    gui_.cmdShowControlPanel.setCaption("Show Control");
    if (gui_.teleoperationtask) gui_.teleoperationtask->suspend();
    panel_.close();
}

void ControlPanel::Form_Load() {
    loaded_ = true;
    resetControls();
    constexpr int kThreeQuarters = 192;
    panel_.style.layered = true;
    panel_.style.alpha = kThreeQuarters;
    panel_.style.topmost = true;
    place();
}

void ControlPanel::gesture() {
    fixedGesture(gui_, myRobot_, clock_);
}

// At the middle of the floor plan's frame, where the main form is at this moment.
void ControlPanel::place() {
    const Area& form = gui_.area();
    const Area& map = gui_.fraMapDisplay.area();
    const auto corner = [](std::int32_t formEdge, std::int32_t mapEdge, std::int32_t mapSize) {
        return roundToLong(static_cast<double>(formEdge) + mapEdge + mapSize / 2.0);
    };
    panel_.moveTo(corner(form.left, map.left, map.width), corner(form.top, map.top, map.height));
}

// The form is made anew: nothing of the one before it is left. No level changes by it.
void ControlPanel::resetControls() {
    resetting_ = true;
    panel_.scrGas.setValue(kNoGas);
    panel_.scrBrake.setValue(kReleased);
    panel_.hscSteering.setValue(kStraight);
    panel_.scrHeadUD.setValue(2000);
    panel_.hscHeadLR.setValue(2000);
    panel_.scrMouthUD.setValue(0);
    panel_.sldLR.setValue(2000);
    panel_.sldUD.setValue(2000);
    panel_.slbGasLevel.setCaption("");
    resetting_ = false;
    selectedAction_.clear();
    constexpr int kDesignMs = 500;
    panel_.tmrButton.setInterval(kDesignMs);
    panel_.tmrButton.setRunning(true);
}

// The levels themselves, too: the scroll bars change nothing where they stand there already or where the
// joystick holds the robot.
void ControlPanel::Form_Activate() {
    panel_.scrBrake.setValue(kReleased);
    panel_.scrGas.setValue(kNoGas);
    panel_.hscSteering.setValue(kStraight);
    values_.brakeLevel = kReleased;
    values_.gasLevel = kNoGas;
    values_.steeringLevel = kStraight;
    panel_.slbGasLevel.setCaption(std::to_string(kNoGas));
}

// However the form is unloaded; cmdClose has done the rest before. The main form's key keeps its caption.
void ControlPanel::Form_Unload() {
    values_.manualPanelActive = false;
    panel_.tmrButton.setRunning(false);
    loaded_ = false;
    panel_.hide();
}

}  // namespace quorrin
