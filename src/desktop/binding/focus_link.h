// The focus of a form and of its window, kept the same both ways.
//
// What the operator does with mouse or keys reaches the form through the operator's door; where the form then
// puts the focus, the window follows. A focus that moves for another reason (the window was activated, a
// widget was disabled) says nothing to the form. One per form and window; the widgets hold it alive.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>

#include "base/form.h"
#include "desktop/binding/listening.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class FocusLink : public QObject {
  public:
    FocusLink(Form& form, const OperatorActs& acts);

    void add(QWidget& widget, Control& control);
    // Tab goes through the widgets in the order in which the form defines its controls.
    void orderTabs() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void follow();

    Form& form_;
    OperatorActs acts_;
    Listening moved_;
    std::map<const Control*, QPointer<QWidget>> widgets_;
    std::map<const QObject*, Control*> controls_;
    bool pushedOut_ = false;
};

}  // namespace quorrin
