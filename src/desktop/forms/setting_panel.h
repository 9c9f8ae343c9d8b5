// fraSetting, the fold-out panel of settings: battery values, review and capture of photos, sound for the
// robot, data sent to and received from the remote client, image quality.
//
// Lays controls out; what they do is the form's. The panel follows the frame's `visible`.
#pragma once

#include "desktop/forms/fold_out.h"
#include "desktop/forms/lamp_rows.h"
#include "desktop/forms/placing.h"

namespace quorrin {

class SettingPanel {
  public:
    // `over` is the window's part that the panel lies on; it owns the panel.
    SettingPanel(Placing& place, Frame& frame, const OperatorActs& acts, QWidget* over);

    FoldOut& panel() { return *panel_; }
    void refresh(const PublicValues& values, const frmGUI& gui) { lamps_.refresh(values, gui); }

  private:
    QWidget* contents(Placing& place);

    LampRows lamps_;
    FoldOut* panel_;
};

}  // namespace quorrin
