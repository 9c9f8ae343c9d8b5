#include "desktop/widgets/plan_picture.h"

#include <QPainter>

#include "desktop/binding/twips.h"
#include "desktop/binding/window_colour.h"

namespace quorrin {

namespace {

int pixels(std::int32_t twips) {
    return qRound(static_cast<double>(twips) / kTwipsPerPixel);
}

}  // namespace

PlanPicture::PlanPicture(Picture& control, QWidget* parent)
    : QWidget(parent), control_(control), looking_(control.onLook, [this] { follow(); }) {
    // The mouse is the viewport's.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    follow();
}

void PlanPicture::follow() {
    const QString file = QString::fromStdString(control_.file());
    if (file != file_) {
        file_ = file;
        image_.load(file);
    }
    const Area& area = control_.area();
    setGeometry(pixels(area.left), pixels(area.top), pixels(area.width), pixels(area.height));
    update();
}

void PlanPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!image_.isNull()) painter.drawImage(rect(), image_);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const DrawnCircle& circle : control_.drawing()) {
        painter.setPen(windowColour(circle.colour));
        const double radius = circle.radius / kTwipsPerPixel;
        painter.drawEllipse(QPointF(circle.x, circle.y) / kTwipsPerPixel, radius, radius);
    }
}

}  // namespace quorrin
