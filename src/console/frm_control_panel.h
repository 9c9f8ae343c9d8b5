// frmControlPanel, the floating panel by which the operator drives. Controls only.
//
// Gas and brake run backwards: 10000 is none, 0 is full. hscSteering covers a tenth of the level's range.
#pragma once

#include "base/controls.h"

namespace quorrin {

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
};

}  // namespace quorrin
