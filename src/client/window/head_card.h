// The part of the window that moves head and mouth: keys that go on while they are held, and sliders.
//
// A slider takes the focus by Tab alone, so that a click on it leaves the arrow keys with the robot.
#pragma once

#include <QPushButton>
#include <QSlider>

#include "client/client_face.h"
#include "client/window/card.h"
#include "client/window/held_caps.h"

namespace quorrin {

class HeadCard : public Card {
  public:
    explicit HeadCard(HeldCaps& caps);

    void show(const ClientFace& face);
    using QWidget::show;
    // In the order in which Tab goes through them.
    std::vector<QWidget*> controls() const { return {upDown_, leftRight_, ahead_, mouth_}; }

    std::function<void(int)> onUpDown;
    std::function<void(int)> onLeftRight;
    std::function<void(int)> onMouth;
    std::function<void()> onAhead;

  private:
    QSlider* slider(ClientControl control, Qt::Orientation orientation, const Scale& scale,
                    std::function<void(int)> HeadCard::*hook);

    QSlider* upDown_;
    QSlider* leftRight_;
    QSlider* mouth_;
    QPushButton* ahead_;
};

}  // namespace quorrin
