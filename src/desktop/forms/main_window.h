// frmGUI's window, the operator's dashboard: header, status strip, left column, camera, floor plan, keys, and
// the two fold-out panels over them.
//
// It binds and draws; the glances are asked for ten times a second while the window shows. The forms and the
// record must outlive it.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "console/frm_gui.h"
#include "desktop/binding/control_factory.h"
#include "desktop/binding/form_link.h"
#include "desktop/forms/left_column.h"
#include "desktop/forms/placing.h"
#include "desktop/forms/sensor_panel.h"
#include "desktop/forms/setting_panel.h"
#include "desktop/forms/status_strip.h"
#include "desktop/operator_acts.h"
#include "session/record/public_values.h"

namespace quorrin {

class LiveViews;

class MainWindow : public QWidget {
  public:
    // `panel` is the control panel's form. `views` goes into the engineering panel; it may be null.
    MainWindow(frmGUI& gui, const PublicValues& values, const Form& panel, const OperatorActs& acts,
               LiveViews* views = nullptr);
    ~MainWindow() override;

    // Draws what is to be told at a glance, now.
    void refresh();
    FoldOut& settings() { return setting_->panel(); }
    FoldOut& engineering() { return sensor_->panel(); }
    // Asks for the glances ten times a second.
    bool drawing() const { return drawing_.isActive(); }

  protected:
    void resizeEvent(QResizeEvent*) override;
    void showEvent(QShowEvent*) override;
    void hideEvent(QHideEvent*) override;
    bool focusNextPrevChild(bool next) override;

  private:
    QWidget* header(Placing& place);
    QWidget* camera(Placing& place);
    QMenu* menu();
    void placePanels();

    frmGUI& gui_;
    const PublicValues& values_;
    const Form& panelForm_;
    ControlFactory make_;
    StatusStrip* strip_;
    LeftColumn* left_;
    QWidget* body_;
    std::unique_ptr<SettingPanel> setting_;
    std::unique_ptr<SensorPanel> sensor_;
    QTimer drawing_;
    bool ordered_ = false;
};

}  // namespace quorrin
