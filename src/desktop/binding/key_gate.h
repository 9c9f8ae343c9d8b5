// Keys come to a window's widgets one after the other: while something that the operator did has not had its
// effect yet, further keys wait. Then they go to whichever widget has the focus by then.
//
// For windows where what is typed decides where the next key belongs. A child of its window.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <deque>
#include <memory>

#include "desktop/operator_acts.h"

namespace quorrin {

class KeyGate : public QObject {
  public:
    KeyGate(QWidget& window, const OperatorActs& acts);

    void watch(QWidget& widget) { widget.installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void askForTurn();
    void letOn();

    QWidget& window_;
    OperatorActs acts_;
    std::deque<std::unique_ptr<QKeyEvent>> waiting_;
    bool passing_ = false;
};

}  // namespace quorrin
