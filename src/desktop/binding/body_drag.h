// Lets a window without a title bar be dragged by its body: hands the left button and the cursor to the
// form's drag, which moves the form, and with it the window.
//
// The window system holds the mouse for the body from press to release by itself. Where a client may not
// place its windows (Wayland), the compositor is asked to move it instead, and the form's drag is not told:
// the press is all that a client sees there.
//
// A child of the body; cursor positions go on as twips.
#pragma once

#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <QWidget>
#include <functional>

#include "console/window_drag.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class BodyDrag : public QObject {
  public:
    // The drag must outlive the body.
    BodyDrag(QWidget& body, WindowDrag& drag, const OperatorActs& acts);

    // Where the cursor is on the screen, in logical pixels; QCursor::pos unless a test says otherwise.
    std::function<QPoint()> cursorPosition;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool press(const QMouseEvent& event);
    bool move(const QMouseEvent& event);
    bool release(const QMouseEvent& event);

    QWidget& body_;
    WindowDrag& drag_;
    OperatorActs acts_;
    bool pressed_ = false;
};

}  // namespace quorrin
