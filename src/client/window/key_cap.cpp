#include "client/window/key_cap.h"

#include <QPainter>

#include "desktop/theme/theme.h"

namespace quorrin {

namespace {

// Of the font's height.
constexpr double kWide = 3.8;
constexpr double kHigh = 3.1;
constexpr double kPicture = 1.3;
constexpr int kSink = 2;  // logical pixels that a held key goes down

}  // namespace

KeyCap::KeyCap(const QString& cap, IconName picture, const QString& caption, QWidget* parent)
    : QAbstractButton(parent), picture_(picture), caption_(caption) {
    setText(cap);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void KeyCap::setLit(bool lit) {
    if (lit == lit_) return;
    lit_ = lit;
    update();
}

QFont KeyCap::captionFont() const {
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * currentTheme().captionSize);
    return small;
}

QSize KeyCap::sizeHint() const {
    const int height = fontMetrics().height();
    const int caption = QFontMetrics(captionFont()).horizontalAdvance(caption_) + 2 * currentTheme().space;
    return {std::max(static_cast<int>(kWide * height), caption), static_cast<int>(kHigh * height)};
}

void KeyCap::drawCap(QPainter& painter, const QRectF& room, const QColor& colour) const {
    if (picture_ == IconName::count) {
        QFont bold = font();
        bold.setWeight(QFont::DemiBold);
        bold.setPointSizeF(bold.pointSizeF() * currentTheme().headingSize);
        painter.setFont(bold);
        painter.setPen(colour);
        painter.drawText(room, Qt::AlignCenter, text());
        return;
    }
    const double side = kPicture * fontMetrics().height();
    QRectF square(0, 0, side, side);
    square.moveCenter(room.center());
    drawIcon(painter, square, picture_, colour);
}

void KeyCap::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    const bool down = lit() && isEnabled();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF key = QRectF(rect()).adjusted(1, 1, -1, -1 - kSink);
    if (down) {
        key.translate(0, kSink);
    } else if (isEnabled()) {
        // The edge of a key that stands up.
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.outline);
        painter.drawRoundedRect(key.translated(0, kSink), theme.radius, theme.radius);
    }
    const QColor edge = !isEnabled() ? theme.line : underMouse() ? theme.text : theme.outline;
    painter.setPen(QPen(down ? theme.accent : edge, 1));
    painter.setBrush(down ? theme.accent : isEnabled() ? theme.field : theme.surface);
    painter.drawRoundedRect(key, theme.radius, theme.radius);
    const QColor writing = !isEnabled() ? theme.disabled : down ? theme.onAccent : theme.text;
    const QFont small = captionFont();
    const double line = QFontMetricsF(small).height() + theme.gap;
    drawCap(painter, key.adjusted(0, 0, 0, -line), writing);
    painter.setFont(small);
    painter.setPen(writing);
    painter.drawText(QRectF(key.left(), key.bottom() - line, key.width(), line - theme.gap), Qt::AlignCenter,
                     caption_);
}

}  // namespace quorrin
