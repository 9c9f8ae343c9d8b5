#include "desktop/widgets/map_scroller.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "console/floor_plan.h"
#include "desktop/binding/twips.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

// Width of the focus ring and of the seam that is kept for it.
constexpr int kRing = 2;

int pixelsOrAll(std::int32_t twips) {
    return twips <= 0 ? QWIDGETSIZE_MAX : twips / kTwipsPerPixel;
}

}  // namespace

MapScroller::MapScroller(ControlFactory& make, MapControls& controls, const OperatorActs& acts,
                         QWidget* parent)
    : QWidget(parent),
      controls_(controls),
      viewport_(new MapViewport(make, controls, acts, this)),
      across_(make.scrollBar("HScroll1", Qt::Horizontal)),
      down_(make.scrollBar("VScroll1", Qt::Vertical)),
      loaded_(controls.picRobotMap.onLook, [this] { arrange(); }) {
    across_->setParent(this);
    down_->setParent(this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize MapScroller::sizeHint() const {
    return {MapControls::kDesignedViewportWidth / kTwipsPerPixel,
            MapControls::kDesignedViewportHeight / kTwipsPerPixel};
}

QSize MapScroller::minimumSizeHint() const {
    return {160, 120};
}

void MapScroller::arrange() {
    const ViewportLimit limit = largestViewport(controls_);
    const QSize bars(down_->sizeHint().width(), across_->sizeHint().height());
    const QSize room = (size() - bars - QSize(2 * kRing, 2 * kRing)).expandedTo(QSize(0, 0));
    QRect place(QPoint(0, 0), room.boundedTo(QSize(pixelsOrAll(limit.width), pixelsOrAll(limit.height))));
    place.moveTopLeft(
        {kRing + (room.width() - place.width()) / 2, kRing + (room.height() - place.height()) / 2});
    viewport_->setGeometry(place);
    across_->setGeometry(place.left(), place.bottom() + 1, place.width(), bars.height());
    down_->setGeometry(place.right() + 1, place.top(), bars.width(), place.height());
    tellViewport();
}

void MapScroller::tellViewport() {
    if (!isVisible()) return;
    const QPoint corner = viewport_->mapTo(window(), QPoint(0, 0));
    const Area area = twips(QRect(corner, viewport_->size()));
    if (area != controls_.Frame1.area()) viewportResized(controls_, area);
}

void MapScroller::paintEvent(QPaintEvent*) {
    if (!viewport_->hasFocus()) return;
    const QRect block = viewport_->geometry() | across_->geometry() | down_->geometry();
    QPainter painter(this);
    painter.setPen(QPen(currentTheme().focus, kRing));
    painter.drawRect(block.adjusted(-kRing / 2, -kRing / 2, kRing / 2, kRing / 2));
}

void MapScroller::resizeEvent(QResizeEvent*) {
    arrange();
}

void MapScroller::showEvent(QShowEvent*) {
    // Where the viewport is in its window changes with everything around it.
    for (QWidget* around = this; around != nullptr && !around->isWindow(); around = around->parentWidget())
        around->installEventFilter(this);
    arrange();
}

bool MapScroller::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) tellViewport();
    return QWidget::eventFilter(watched, event);
}

}  // namespace quorrin
