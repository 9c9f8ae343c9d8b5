// The control panel's background, Picture1: takes the keys and carries everything else on the panel.
//
// Which key goes where: while the focus is on the background, all but Tab and Shift+Tab, which go through the
// panel's controls as everywhere. While it is on a button, that button has Space and Enter, and the
// background all others. A scroll bar that was reached by Tab keeps its keys. Combinations with Ctrl, Alt or
// the logo key stay shortcuts, and so do function keys where they are one. What a keyboard's auto-repeat says
// of a key coming up is no release.
#pragma once

#include <QKeyEvent>
#include <QWidget>

#include "base/controls.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class PanelBody : public QWidget {
  public:
    PanelBody(Picture& picture, const OperatorActs& acts);

    // The button leaves its keys, but for those that press it, to the background.
    void takeKeysOf(QWidget& button) { button.installEventFilter(this); }
    // Of 255; below that what is behind the panel shines through. For window systems that do not do it.
    void setAlpha(int alpha);

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override { take(*event); }
    void keyReleaseEvent(QKeyEvent* event) override { take(*event); }
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }
    void paintEvent(QPaintEvent*) override;

  private:
    void take(QKeyEvent& event);

    Picture& picture_;
    OperatorActs acts_;
    int alpha_ = 255;
};

}  // namespace quorrin
