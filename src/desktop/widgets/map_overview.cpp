#include "desktop/widgets/map_overview.h"

#include <QPainter>

#include "console/floor_plan.h"
#include "desktop/binding/twips.h"
#include "desktop/theme/theme.h"

namespace quorrin {

MapOverview::MapOverview(ControlFactory& make, MapControls& controls, QWidget* parent)
    : QWidget(parent),
      controls_(controls),
      picture_(controls.imgThumb.onLook, [this] { follow(); }),
      plan_(controls.picRobotMap.onLook, [this] { update(); }),
      across_(controls.HScroll1.onLook, [this] { update(); }),
      down_(controls.VScroll1.onLook, [this] { update(); }) {
    make.dress(*this, controls.imgThumb);
    follow();
}

QSize MapOverview::sizeHint() const {
    constexpr int kDesignedWidth = 168;
    constexpr int kDesignedHeight = 155;
    return image_.isNull() ? QSize(kDesignedWidth, kDesignedHeight) : image_.size();
}

void MapOverview::follow() {
    const QString file = QString::fromStdString(controls_.imgThumb.file());
    if (file == file_) return;
    file_ = file;
    image_.load(file);
    updateGeometry();
    tellArea();
    update();
}

QRect MapOverview::picturePlace() const {
    if (image_.isNull()) return {};
    QRect place(QPoint(0, 0), image_.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    return place;
}

QRect MapOverview::seenFrame() const {
    const QRect place = picturePlace();
    const PlanPart part = seenPart(controls_);
    return {place.left() + qRound(part.left * place.width()), place.top() + qRound(part.top * place.height()),
            qRound(part.width * place.width()), qRound(part.height * place.height())};
}

void MapOverview::tellArea() {
    controls_.imgThumb.setArea(twips(picturePlace().translated(pos())));
}

void MapOverview::resizeEvent(QResizeEvent*) {
    tellArea();
}

void MapOverview::moveEvent(QMoveEvent*) {
    tellArea();
}

void MapOverview::paintEvent(QPaintEvent*) {
    if (image_.isNull()) return;
    constexpr int kLine = 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(picturePlace(), image_);
    // The frame is dark on a light seam, so that it is seen on every plan.
    const QRect frame = seenFrame().adjusted(1, 1, -1, -1);
    painter.setPen(QPen(Qt::white, 2 * kLine));
    painter.drawRect(frame);
    painter.setPen(QPen(lightTheme().accent, kLine));
    painter.drawRect(frame);
}

}  // namespace quorrin
