// fraSensor, the engineering panel: ranges, settings in boxes, keys of the tasks, counters and raw values,
// and the live views, on pages that are turned by tabs beside the title.
//
// It shows when the frame's `visible` is set, and when somebody in front of the screen opens it: that touches
// nothing of the station. The close key closes either. The page that was chosen last is there again.
#pragma once

#include "desktop/binding/listening.h"
#include "desktop/forms/fold_out.h"
#include "desktop/forms/placing.h"

namespace quorrin {

class LiveViews;
class Pages;

class SensorPanel {
  public:
    // `over` owns the panel. `views`, which may be null, are its first page.
    SensorPanel(Placing& place, Frame& frame, CommandButton& closeKey, const OperatorActs& acts,
                LiveViews* views, QWidget* over);
    SensorPanel(const SensorPanel&) = delete;
    SensorPanel& operator=(const SensorPanel&) = delete;

    FoldOut& panel() { return *panel_; }
    // Opens or closes it for the one who looks.
    void toggle();

  private:
    static Pages* contents(Placing& place, LiveViews* views);
    void putPagesInHead(LiveViews* views);
    void follow();
    void close();

    Frame& frame_;
    Pages* pages_;
    FoldOut* panel_;
    bool opened_ = false;
    Listening frameLook_;
    Listening closed_;
};

}  // namespace quorrin
