// The form's left column, fra(2): drives, power, network, and the overview of the floor plan.
//
// Two by two where there is little height, under one another where there is enough.
#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "console/glance.h"
#include "desktop/forms/lamp_rows.h"
#include "desktop/forms/placing.h"
#include "desktop/tiles/glance_tile.h"

namespace quorrin {

class LeftColumn : public QWidget {
  public:
    LeftColumn(Placing& place, MapControls& map, QWidget* parent = nullptr);

    void refresh(const PublicValues& values, const frmGUI& gui, const Glance& stuck);
    // One column where the height allows it.
    void arrange(int height);

    // That of the lower arrangement, so that the window can always be made lower.
    QSize minimumSizeHint() const override;

  private:
    Group* drives(Placing& place);
    Group* power(Placing& place);
    Group* network(Placing& place);
    Group* overview(Placing& place, MapControls& controls);
    void order(bool high);

    LampRows lamps_;
    GlanceTile* stuck_ = nullptr;
    // Pictures whose number means something, by their control.
    std::vector<std::pair<const Picture*, QWidget*>> signs_;
    std::array<Group*, 4> groups_{};
    bool high_ = false;
};

}  // namespace quorrin
