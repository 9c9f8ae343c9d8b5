// The window of frmControlPanel: small, without a frame, half transparent, above the other windows, dragged
// by its body. It binds and draws; what its controls do is the form's logic.
//
// How opaque it is and that it stays on top stand in the form's style and are put to the window whenever it
// is shown. X11 does both (to be seen through it needs a compositor on the screen) and takes the place that
// the form has. Wayland lets no client choose a place, an opacity or an order: there the compositor places
// the panel above its owner, the ground alone is see-through, and a drag is the compositor's.
//
// A tool window: it stays when another window of the program has the focus. Clicks leave the keyboard on the
// background; Tab goes through the controls and Shift+Tab back. Without the mouse the panel is reached and
// left by the key of the main form that shows and hides it, which works in both windows.
#pragma once

#include <QGridLayout>
#include <QWidget>

#include "console/frm_control_panel.h"
#include "console/window_drag.h"
#include "desktop/binding/body_drag.h"
#include "desktop/binding/control_factory.h"
#include "desktop/binding/form_link.h"
#include "desktop/forms/panel_body.h"
#include "desktop/operator_acts.h"
#include "desktop/theme/icons.h"

namespace quorrin {

class ControlPanelWindow : public QWidget {
  public:
    // `owner` is the main form's window, or null. Form and drag must outlive this.
    ControlPanelWindow(frmControlPanel& form, WindowDrag& drag, const OperatorActs& acts,
                       QWidget* owner = nullptr);

    BodyDrag& bodyDrag() { return *bodyDrag_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void applyStyle();
    void layOut();
    QWidget* heading();
    QWidget* driving();
    QWidget* looking();
    QWidget* speaking();
    QWidget* key(const std::string& name, IconName picture);
    QWidget* bar(Slider& control, Qt::Orientation orientation);
    QWidget* indicator(Slider& control, Qt::Orientation orientation);

    frmControlPanel& form_;
    ControlFactory controls_;
    PanelBody* body_;
    BodyDrag* bodyDrag_ = nullptr;
    Listening styling_;  // before the link, which shows the window
    FormLink* link_ = nullptr;
};

}  // namespace quorrin
