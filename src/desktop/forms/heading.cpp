#include "desktop/forms/heading.h"

#include <QPainter>

#include "desktop/theme/icons.h"
#include "desktop/theme/theme.h"

namespace quorrin {

Heading::Heading(const QString& name, QWidget* parent) : QWidget(parent), name_(name) {
    setAccessibleName(name);
}

QFont Heading::nameFont() const {
    QFont large = font();
    large.setPointSizeF(font().pointSizeF() * currentTheme().wordSize * currentTheme().wordSize);
    large.setWeight(QFont::DemiBold);
    return large;
}

int Heading::side() const {
    return QFontMetrics(nameFont()).height() * 3 / 2;
}

QSize Heading::sizeHint() const {
    return {side() + 2 * currentTheme().space + QFontMetrics(nameFont()).horizontalAdvance(name_), side()};
}

void Heading::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF square(0, 0, side(), side());
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.accent);
    painter.drawRoundedRect(square, theme.radius, theme.radius);
    const double margin = side() * 0.2;
    drawIcon(painter, square.adjusted(margin, margin, -margin, -margin), IconName::mark, theme.onAccent);
    painter.setPen(theme.text);
    painter.setFont(nameFont());
    painter.drawText(rect().adjusted(side() + 2 * theme.space, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     name_);
}

}  // namespace quorrin
