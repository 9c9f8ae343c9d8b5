// The keys of the control panel: a key names an action, and one routine carries out the action that was named
// last. There is no repeat here; a key that is held comes again by the keyboard's own.
#include "console/control_panel.h"

namespace quorrin {

namespace {

constexpr int kLeftKey = 37;
constexpr int kRightKey = 39;

struct KeyAction {
    int key;
    const char* action;
};
constexpr KeyAction kKeyActions[] = {
    {38, "GasUp"},    // up arrow
    {40, "GasDown"},  // down arrow
    {kLeftKey, "TurnLeft"},
    {kRightKey, "TurnRight"},
    {32, "Stop"},   // space
    {36, "Up"},     // home
    {35, "Down"},   // end
    {46, "Left"},   // delete
    {34, "Right"},  // page down
    {8, "Reset"},   // backspace
};

// Each key lets pending events run before it acts, and these may be keys again. Beyond this depth, which only
// a script with hundreds of keys at one instant reaches, a key acts without that; the others come after it.
constexpr int kDeepestKey = 200;

class Depth {
  public:
    explicit Depth(int& depth) : depth_(depth) { ++depth_; }
    ~Depth() { --depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

  private:
    int& depth_;
};

}  // namespace

void ControlPanel::bindKeys() {
    panel_.Picture1.onKeyDown = [this](int key) { Picture1_KeyDown(key); };
    panel_.Picture1.onKeyUp = [this](int key) { Picture1_KeyUp(key); };
    panel_.tmrButton.setHandler([this] { tmrButton_Timer(); });
}

// A key without an action of its own repeats the last one.
void ControlPanel::Picture1_KeyDown(int key) {
    for (const KeyAction& entry : kKeyActions) {
        if (entry.key == key) selectedAction_ = entry.action;
    }
    tmrButton_Timer();
}

// Steering goes straight again, also while the other key is still held.
void ControlPanel::Picture1_KeyUp(int key) {
    if (key == kLeftKey || key == kRightKey) panel_.hscSteering.setValue(5000);
}

// Runs directly for each key, and once by the timer, half a second after the form was loaded, when there is
// nothing to carry out unless a key has come first, which switches the timer off.
void ControlPanel::tmrButton_Timer() {
    constexpr int kShorterMs = 50;
    panel_.tmrButton.setInterval(kShorterMs);
    {
        const Depth depth(keyDepth_);
        if (keyDepth_ < kDeepestKey) clock_.yield();
    }
    carryOut(selectedAction_);
    panel_.tmrButton.setRunning(false);
}

void ControlPanel::carryOut(const std::string& action) {
    if (action == "TurnLeft") {
        panel_.hscSteering.setValue(4500);
    } else if (action == "TurnRight") {
        panel_.hscSteering.setValue(5500);
    } else if (action == "GasUp") {
        panel_.cmdGasUp.click();
    } else if (action == "GasDown") {
        panel_.cmdGasDown.click();
    } else if (action == "Stop") {
        panel_.cmdBrake.click();
    } else if (action == "Up") {
        panel_.cmdHeadUp.click();
    } else if (action == "Down") {
        panel_.cmdHeadDown.click();
    } else if (action == "Left") {
        panel_.cmdHeadLeft.click();
    } else if (action == "Right") {
        panel_.cmdHeadRight.click();
    } else if (action == "Reset") {
        panel_.cmdReset.click();
    }
}

}  // namespace quorrin
