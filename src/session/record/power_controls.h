// The main form's controls for batteries, dock and charger. The lamps are in lamp_controls.h.
//
// cmdCharge and tmrCharge exist and do nothing: the power frame alone decides about charging.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct PowerControls {
    PowerControls(Form& form, Clock& clock)
        : txtVolTh(form, "txtVolTh", "10.4", Accepts::number),
          txtNopowerth(form, "txtNopowerth", "9.0", Accepts::number),
          lblVolRef(form, "lblVolRef"),
          lblBat1vol(form, "lblBat1vol"),
          lblBat1Temp(form, "lblBat1Temp"),
          lblBat2Vol(form, "lblBat2Vol"),
          lblBat2Temp(form, "lblBat2Temp"),
          lblDCIN(form, "lblDCIN"),
          lblLTC1960(form, "lblLTC1960"),
          cmdStopChg(form, "cmdStopChg", "Stop Charge"),
          cmdCharge(form, "cmdCharge", "Charge"),
          tmrFlashRed(form, "tmrFlashRed", clock, 200),
          tmrCharge(form, "tmrCharge", clock, 0) {}

    TextBox txtVolTh;      // volts: below it a battery is low, above it the DC input is a powered dock
    TextBox txtNopowerth;  // volts, shown only
    Label lblVolRef;
    Label lblBat1vol;
    Label lblBat1Temp;
    Label lblBat2Vol;
    Label lblBat2Temp;
    Label lblDCIN;
    Label lblLTC1960;  // status byte of the charger
    CommandButton cmdStopChg;
    CommandButton cmdCharge;
    Timer tmrFlashRed;
    Timer tmrCharge;
};

}  // namespace quorrin
