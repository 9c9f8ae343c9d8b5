// The part of the window that drives: the four arrow keys, the levels that went out, what the keys do now,
// the switch of the collision avoidance. Takes the focus, so that the keys have a place to go.
#pragma once

#include <QCheckBox>
#include <QLabel>

#include "client/client_face.h"
#include "client/window/card.h"
#include "client/window/held_caps.h"
#include "client/window/levels_view.h"

namespace quorrin {

class DriveCard : public Card {
  public:
    explicit DriveCard(HeldCaps& caps);

    void show(const ClientFace& face);
    using QWidget::show;
    QCheckBox& avoidance() { return *avoidance_; }

    std::function<void(bool on)> onAvoidance;

  private:
    QLabel* line();

    LevelsView* levels_;
    QLabel* driving_;
    QLabel* stick_;
    QCheckBox* avoidance_;
};

}  // namespace quorrin
