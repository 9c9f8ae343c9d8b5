// The window of frmLogin: four address fields with dots between them, the port, OK and Cancel.
//
// Keys go to the fields one after the other, so that an address can be typed in one go whatever the fields
// make of it. Enter presses OK wherever the form has no other use for it.
#pragma once

#include <QWidget>

#include "console/frm_login.h"
#include "desktop/binding/control_factory.h"
#include "desktop/binding/key_gate.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class LoginWindow : public QWidget {
  public:
    LoginWindow(frmLogin& form, const OperatorActs& acts);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* addressRow();
    QWidget* portRow();
    QWidget* keyRow();
    QLabel* caption(const std::string& control);

    frmLogin& form_;
    OperatorActs acts_;
    ControlFactory controls_;
    KeyGate* keys_;
};

}  // namespace quorrin
