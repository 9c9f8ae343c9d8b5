// fraSensor, the engineering panel: ranges, settings in boxes, keys of the tasks, counters and raw values,
// and the live views.
//
// It shows when the frame's `visible` is set, and when somebody in front of the screen opens it: that touches
// nothing of the station. The close key closes either.
#pragma once

#include "desktop/binding/listening.h"
#include "desktop/forms/fold_out.h"
#include "desktop/forms/placing.h"

namespace quorrin {

class SensorPanel {
  public:
    // `over` owns the panel. `views`, which may be null, goes to the panel's right-hand side.
    SensorPanel(Placing& place, Frame& frame, CommandButton& closeKey, const OperatorActs& acts,
                QWidget* views, QWidget* over);
    SensorPanel(const SensorPanel&) = delete;
    SensorPanel& operator=(const SensorPanel&) = delete;

    FoldOut& panel() { return *panel_; }
    // Opens or closes it for the one who looks.
    void toggle();

  private:
    QWidget* contents(Placing& place, QWidget* views);
    void follow();
    void close();

    Frame& frame_;
    FoldOut* panel_;
    bool opened_ = false;
    Listening frameLook_;
    Listening closed_;
};

}  // namespace quorrin
