// The bar of keys, fra(1): mode switch, settings, control panel, listen, talk.
#pragma once

#include "desktop/binding/listening.h"
#include "desktop/forms/placing.h"

namespace quorrin {

class KeyBar : public QWidget {
  public:
    KeyBar(Placing& place, CommandButton& modeKey, QWidget* parent = nullptr);

  private:
    void showMode();

    CommandButton& modeKey_;
    QWidget* modeWidget_;
    Listening listening_;
};

}  // namespace quorrin
