#include "desktop/widgets/map_view.h"

#include <QVBoxLayout>

#include "desktop/binding/bind.h"

namespace quorrin {

MapView::MapView(ControlFactory& make, MapControls& controls, const OperatorActs& acts, QWidget* parent)
    : QGroupBox(QString::fromStdString(controls.fraMapDisplay.caption()), parent),
      scroller_(new MapScroller(make, controls, acts, this)) {
    auto* const inside = new QVBoxLayout(this);
    inside->addWidget(scroller_);
    bind(*this, controls.fraMapDisplay, acts);
    make.dress(*this, controls.fraMapDisplay);
}

}  // namespace quorrin
