// frmControlPanel, the floating panel by which the operator drives. Controls only; see control_panel.h for
// what it does.
//
// Gas and brake run backwards: 10000 is none, 0 is full; the brake's bar has 10000 at its top, all others
// have their lowest value at the top or the left. hscSteering covers a tenth of the level's range. sldLR and
// sldUD only show where the head is told to look. Picture1 is the background, which takes the keys.
#pragma once

#include "base/controls.h"

namespace quorrin {

// How a window lies over others. A view makes of it what its window system offers.
struct WindowStyle {
    bool layered = false;  // can be seen through
    int alpha = 255;       // of 255
    bool topmost = false;
};

struct frmControlPanel : Form {
    explicit frmControlPanel(Clock& clock)
        : Form("frmControlPanel"),
          scrGas(*this, "scrGas", 0, 10000, 10000),
          scrBrake(*this, "scrBrake", 0, 10000, 10000),
          hscSteering(*this, "hscSteering", 4500, 5500, 5000),
          scrHeadUD(*this, "scrHeadUD", 0, 3500, 2000),
          hscHeadLR(*this, "hscHeadLR", 0, 4000, 2000),
          scrMouthUD(*this, "scrMouthUD", 0, 1200, 0),
          slbGasLevel(*this, "slbGasLevel"),
          sldLR(*this, "sldLR", 0, 4000, 2000),
          sldUD(*this, "sldUD", 0, 3500, 2000),
          cmdGasUp(*this, "cmdGasUp"),
          cmdGasDown(*this, "cmdGasDown"),
          cmdBrake(*this, "cmdBrake", "Stop"),
          cmdTurnLeft(*this, "cmdTurnLeft"),
          cmdTurnRight(*this, "cmdTurnRight"),
          cmdHeadUp(*this, "cmdHeadUp"),
          cmdHeadDown(*this, "cmdHeadDown"),
          cmdHeadLeft(*this, "cmdHeadLeft"),
          cmdHeadRight(*this, "cmdHeadRight"),
          cmdMouthUp(*this, "cmdMouthUp"),
          cmdMouthDown(*this, "cmdMouthDown"),
          cmdReset(*this, "cmdReset", "Reset"),
          cmdClose(*this, "cmdClose"),
          Picture1(*this, "Picture1"),
          tmrButton(*this, "tmrButton", clock, 500) {
        scrGas.largeChange = 500;
        scrBrake.maximumFirst = true;
    }

    Slider scrGas;
    Slider scrBrake;
    Slider hscSteering;
    Slider scrHeadUD;
    Slider hscHeadLR;
    Slider scrMouthUD;
    Label slbGasLevel;
    Slider sldLR;
    Slider sldUD;
    CommandButton cmdGasUp;
    CommandButton cmdGasDown;
    CommandButton cmdBrake;
    CommandButton cmdTurnLeft;
    CommandButton cmdTurnRight;
    CommandButton cmdHeadUp;
    CommandButton cmdHeadDown;
    CommandButton cmdHeadLeft;
    CommandButton cmdHeadRight;
    CommandButton cmdMouthUp;
    CommandButton cmdMouthDown;
    CommandButton cmdReset;
    CommandButton cmdClose;
    Picture Picture1;
    Timer tmrButton;
    WindowStyle style;  // set when the form is loaded
};

}  // namespace quorrin
