// frmAbout, the small form that tells version and makers. Controls only; see about.h for what it does.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct frmAbout : Form {
    explicit frmAbout(Clock& clock)
        : Form("frmAbout"),
          lblVersion(*this, "lblVersion"),
          picExtend(*this, "picExtend"),
          picDesignTeam(*this, "picDesignTeam"),
          lblWWW(*this, "lblWWW"),
          cmdOK(*this, "cmdOK", "OK"),
          Timer1(*this, "Timer1", clock, 50) {}

    Label lblVersion;
    Frame picExtend;      // the page that slides in
    Frame picDesignTeam;  // the list of makers, on that page
    Label lblWWW;
    CommandButton cmdOK;
    Timer Timer1;
};

}  // namespace quorrin
