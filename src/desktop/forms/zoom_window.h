// The window of frmZoomCamera: the camera's picture, stretched over all of it, and a key that closes it.
// Dragged by its body; its lower right corner sizes it.
#pragma once

#include <QSizeGrip>
#include <QWidget>

#include "console/frm_zoom_camera.h"
#include "console/window_drag.h"
#include "desktop/binding/body_drag.h"
#include "desktop/binding/control_factory.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class ZoomWindow : public QWidget {
  public:
    // Form and drag must outlive this.
    ZoomWindow(frmZoomCamera& form, WindowDrag& drag, const OperatorActs& acts);

    BodyDrag& bodyDrag() { return *bodyDrag_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    ControlFactory controls_;
    QWidget* picture_;
    QWidget* close_;
    QSizeGrip* grip_;
    BodyDrag* bodyDrag_;
};

}  // namespace quorrin
