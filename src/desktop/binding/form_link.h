// A window that is a form's: shown, hidden, moved and brought to the front as the form says.
//
// Closing the window asks the form, through the operator's door, and leaves the window as it is until the
// form has decided. The form is told where its window is (twips) and when it becomes the active one. A child
// of the window; the form must outlive it or say nothing more.
#pragma once

#include <QObject>
#include <QWidget>

#include "base/form.h"
#include "desktop/binding/listening.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class FormLink : public QObject {
  public:
    FormLink(QWidget& window, Form& form, const OperatorActs& acts);

    // The operator presses a mouse button on the window. One that is not the active one becomes it by that,
    // before the press has its effect, though the window system may tell so only later.
    void pressed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow();
    void toFront();
    void moveWindow();
    void tellArea();

    QWidget& window_;
    Form& form_;
    OperatorActs acts_;
    bool announced_ = false;  // the form knows already that the window is about to become the active one
    Listening shown_;
    Listening activated_;
    Listening moved_;
};

}  // namespace quorrin
