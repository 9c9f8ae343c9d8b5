#include "desktop/widgets/lamp.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include "desktop/binding/window_colour.h"
#include "desktop/theme/icon_paths.h"
#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

QPainterPath outline(Tone tone, const QRectF& box) {
    QPainterPath path;
    if (tone == Tone::bad || tone == Tone::warning) {
        path.moveTo(box.center().x(), box.top());
        path.lineTo(box.right(), box.center().y());
        path.lineTo(box.center().x(), box.bottom());
        path.lineTo(box.left(), box.center().y());
        path.closeSubpath();
    } else {
        path.addEllipse(box);
    }
    return path;
}

// On a square of 24 around the middle, in the icons' words; empty for a blank lamp.
const char* signWords(LampShape shape) {
    switch (shape) {
        case LampShape::tick:
            return "M 7 12.5 L 10.5 16 L 17 8";
        case LampShape::bar:
            return "M 7 12 L 17 12";
        case LampShape::exclamation:
            return "M 12 6.5 L 12 13;M 12 17 L 12 17.2";
        case LampShape::cross:
            return "M 8 8 L 16 16;M 16 8 L 8 16";
        case LampShape::bolt:
            return "F M 13.5 4 L 7 13 L 11.5 13 L 10 20 L 17 10.5 L 12.5 10.5 Z";
        case LampShape::plug:
            return "M 9.5 5.5 L 9.5 9;M 14.5 5.5 L 14.5 9;F M 7 9 L 17 9 L 17 11 C 17 14 14.5 15 12 15 C 9.5 "
                   "15 7 14 7 "
                   "11 Z;M 12 15 L 12 19";
        case LampShape::question:
            return "A 12 9.4 3 180 -190;M 14.9 10 C 14 12 12 12 12 13.8;M 12 17.2 L 12 17.4";
        case LampShape::blank:
            break;
    }
    return "";
}

}  // namespace

Lamp::Lamp(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

void Lamp::setFill(Colour fill) {
    if (fill == fill_) return;
    fill_ = fill;
    update();
}

void Lamp::setSign(const LampSign& sign) {
    const bool same = sign.word == sign_.word && sign.shape == sign_.shape && sign.tone == sign_.tone;
    if (same) return;
    sign_ = sign;
    setAccessibleDescription(word());
    updateGeometry();
    update();
}

int Lamp::side() const {
    return qMax(currentTheme().lampSize, fontMetrics().height() + 2);
}

QSize Lamp::sizeHint() const {
    const int words =
        sign_.word.empty() ? 0 : currentTheme().gap + fontMetrics().horizontalAdvance(word()) + 2;
    return {side() + words, side()};
}

void Lamp::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(0, (height() - side()) / 2.0, side(), side()).adjusted(1, 1, -1, -1);
    const QColor colour = windowColour(fill_);
    const QPainterPath path = outline(sign_.tone, box);
    painter.fillPath(path, colour);
    painter.strokePath(path, QPen(theme.outline, 1.2));
    const bool darkInk = contrast(Qt::black, colour) >= contrast(Qt::white, colour);
    drawParts(painter, box, readIconParts(QString::fromLatin1(signWords(sign_.shape))),
              darkInk ? Qt::black : Qt::white);
    painter.setPen(theme.text);
    const QRect rest = rect().adjusted(side() + theme.gap, 0, 0, 0);
    painter.drawText(rest, Qt::AlignVCenter | Qt::AlignLeft, word());
}

void Lamp::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) updateGeometry();
    QWidget::changeEvent(event);
}

}  // namespace quorrin
