// The group of the floor plan: its title, and the plan behind its viewport. The overview is a widget of its
// own (map_overview.h), for wherever it fits.
#pragma once

#include <QGroupBox>

#include "desktop/widgets/map_scroller.h"

namespace quorrin {

class MapView : public QGroupBox {
  public:
    MapView(ControlFactory& make, MapControls& controls, const OperatorActs& acts, QWidget* parent = nullptr);

  private:
    MapScroller* scroller_;
};

}  // namespace quorrin
