// frmLogin, the first form: the robot's address and port. Controls only; see login.h for what it does.
//
// txt_ip are the four address fields, txt_ipdot the dots between them; the tag of a field is its validity,
// "True", "False" or "" while nothing has been put into it.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct frmLogin : Form {
    explicit frmLogin(Clock& clock)
        : Form("frmLogin"),
          txt_ip(*this, "txt_ip", 0),
          txt_ipdot(*this, "txt_ipdot", 0, "."),
          txtRobotPort(*this, "txtRobotPort"),
          cmdOK(*this, "cmdOK", "OK"),
          cmdCancel(*this, "cmdCancel", "Cancel"),
          Timer2(*this, "Timer2", clock, 100),
          Timer3(*this, "Timer3", clock, 0) {
        cmdOK.setEnabled(false);
    }

    ControlArray<TextBox, 4> txt_ip;
    ControlArray<TextBox, 3> txt_ipdot;
    TextBox txtRobotPort;
    CommandButton cmdOK;
    CommandButton cmdCancel;
    Timer Timer2;  // watches the validity until it is given
    Timer Timer3;  // never used
};

}  // namespace quorrin
