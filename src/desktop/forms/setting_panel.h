// fraSetting, the fold-out panel of settings: battery values, review and capture of photos, sound for the
// robot, data sent to and received from the remote client, image quality.
//
// Lays controls out; what they do is the form's. The panel follows the frame's `visible`. Where the room is
// too small for all of it, the panel has two pages.
#pragma once

#include <array>

#include "desktop/forms/fold_out.h"
#include "desktop/forms/lamp_rows.h"
#include "desktop/forms/placing.h"

namespace quorrin {

class Pages;

class SettingPanel {
  public:
    // `over` is the window's part that the panel lies on; it owns the panel.
    SettingPanel(Placing& place, Frame& frame, const OperatorActs& acts, QWidget* over);

    FoldOut& panel() { return *panel_; }
    // Chooses between one page and two for that room; the width that the panel should have there.
    int arrange(QSize room);
    void refresh(const PublicValues& values, const frmGUI& gui) { lamps_.refresh(values, gui); }

  private:
    Pages* contents(Placing& place);
    void deal(bool together);

    LampRows lamps_;
    Group *battery_, *sound_, *review_, *capture_, *sending_, *received_, *quality_;
    std::array<QVBoxLayout*, 3> photos_{}, remote_{};  // columns
    QSize whole_;                                      // of everything on one page
    Pages* pages_;
    FoldOut* panel_;
};

}  // namespace quorrin
