// The bar of keys, fra(1): mode switch, settings, control panel, listen, talk.
//
// The form gives the mode key a picture and no caption: here it wears both, and its name for those who do not
// see it says the mode, too.
#pragma once

#include "desktop/binding/listening.h"
#include "desktop/forms/placing.h"
#include "desktop/widgets/command.h"

namespace quorrin {

class KeyBar : public QWidget {
  public:
    KeyBar(Placing& place, CommandButton& modeKey, QWidget* parent = nullptr);

  private:
    void showMode();

    CommandButton& modeKey_;
    Command* modeWidget_;
    Listening listening_;
};

}  // namespace quorrin
