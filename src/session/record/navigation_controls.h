// The main form's controls that navigation reads and writes.
//
// The four thresholds have one storage with two names: the text box. Reading a box that holds no number is a
// ProgramError.
#pragma once

#include "base/checked_int.h"
#include "base/controls.h"
#include "base/number_text.h"

namespace quorrin {

struct NavigationControls {
    explicit NavigationControls(Form& form)
        : txtTh1(form, "txtTh1", "40", Accepts::integer),
          txtTh2(form, "txtTh2", "100", Accepts::integer),
          txtTh3(form, "txtTh3", "3", Accepts::integer),
          txtTh4(form, "txtTh4", "3", Accepts::integer),
          txtWonderSpeed(form, "txtWonderSpeed", "5000", Accepts::integer),
          txtCnt(form, "txtCnt"),
          chkGPS(form, "chkGPS") {}

    TextBox txtTh1;
    TextBox txtTh2;
    TextBox txtTh3;
    TextBox txtTh4;
    TextBox txtWonderSpeed;  // gas level of the wander, 0 full to 10000 none
    TextBox txtCnt;          // tick count of a forgetable run
    CheckBox chkGPS;         // a landmark fix was taken

    Integer densityThreshold() const { return numberToInteger(txtTh1.text()); }
    Integer speedSaturation() const { return numberToInteger(txtTh2.text()); }
    Integer sideClearance() const { return numberToInteger(txtTh3.text()); }
    Integer minGapSectors() const { return numberToInteger(txtTh4.text()); }
    void setThresholds(int density, int saturation, int clearance, int gap) {
        txtTh1.setText(std::to_string(density));
        txtTh2.setText(std::to_string(saturation));
        txtTh3.setText(std::to_string(clearance));
        txtTh4.setText(std::to_string(gap));
    }
};

}  // namespace quorrin
