// What binds one widget to one control, whatever their kinds: a child of the widget that lives as long as it.
//
// Widget to control: only through the operator's door. Control to widget: by the control's look hook, and
// only what differs is written. While something that the operator did here has not had its turn yet, the
// widget keeps what the operator sees; when it has, the widget shows what the control has made of it.
//
// Enabled and visible follow the control. The control must outlive the widget or say nothing more.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>

#include "base/form.h"
#include "desktop/binding/listening.h"
#include "desktop/operator_acts.h"

namespace quorrin {

class Binding : public QObject {
  public:
    Binding(QWidget& widget, Control& control, const OperatorActs& acts);

  protected:
    // Writes the control's value into the widget. Called by start(), and whenever something has changed.
    virtual void showValue() = 0;
    // To be called at the end of a constructor.
    void start() { look(); }

    // The operator does something to the control.
    void act(std::function<void()> deed);
    // Shows the control again, unless the operator's own value is still on its way.
    void look();
    // True while showValue() writes: what the widget signals then is not the operator's doing.
    bool writing() const { return writing_; }
    // For a kind that holds an edit back until it is finished.
    virtual bool keepsOwnValue() const { return false; }

  private:
    QWidget& widget_;
    Control& control_;
    OperatorActs acts_;
    Listening looking_;
    int onTheWay_ = 0;
    bool writing_ = false;
    bool visible_ = true;
};

}  // namespace quorrin
