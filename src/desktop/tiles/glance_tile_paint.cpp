#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/tiles/glance_tile.h"

namespace quorrin {

namespace {

constexpr int kMargin = GlanceTile::kMargin;
constexpr int kProgressHeight = GlanceTile::kProgressHeight;

IconName signOf(Tone tone) {
    switch (tone) {
        case Tone::good:
            return IconName::tick;
        case Tone::busy:
            return IconName::busy;
        case Tone::warning:
            return IconName::warning;
        case Tone::bad:
            return IconName::cross;
        case Tone::off:
            break;
    }
    return IconName::count;
}

}  // namespace

void GlanceTile::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    const ToneColours& tone = toneColours(theme, glance_.tone);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme.radius, theme.radius);
    painter.fillPath(shape, tone.tint);
    painter.setClipPath(shape);
    drawBlock(painter, tone);
    drawLines(painter, tone);
    drawProgress(painter, tone);
    painter.setClipping(false);
    painter.strokePath(shape, QPen(glance_.tone == Tone::off ? theme.line : tone.block, 1));
}

void GlanceTile::drawBlock(QPainter& painter, const ToneColours& tone) const {
    const QRectF block(0, 0, blockWidth(sizes_.scale), height());
    painter.fillRect(block, tone.block);
    const double side = std::min(block.width(), block.height()) * (kind_ == Kind::large ? 0.62 : 0.64);
    QRectF picture(0, 0, side, side);
    picture.moveCenter(block.center());
    const IconName sign = signOf(glance_.tone);
    if (sign == IconName::count) {
        drawIcon(painter, picture, picture_, tone.onBlock);
        return;
    }
    picture.translate(-side * 0.14, -side * 0.1);
    drawIcon(painter, picture, picture_, tone.onBlock);
    // The sign of the state on a disc of its own, down and to the right.
    const double badge = side * 0.56;
    QRectF disc(0, 0, badge, badge);
    disc.moveCenter(QPointF(block.right() - badge * 0.62, block.bottom() - badge * 0.68));
    painter.setPen(QPen(tone.block, 2));
    painter.setBrush(tone.tint);
    painter.drawEllipse(disc);
    const double inset = badge * (sign == IconName::busy ? 0.06 : 0.18);
    drawIcon(painter, disc.adjusted(inset, inset, -inset, -inset), sign, tone.text);
}

void GlanceTile::drawLines(QPainter& painter, const ToneColours& tone) const {
    const Theme& theme = currentTheme();
    const bool large = kind_ == Kind::large;
    const QFont captions = lineFont(sizes_.caption, false);
    const int captionHeight = QFontMetrics(captions).height();
    const double largest = (large ? theme.displaySize : theme.wordSize) * sizes_.scale;
    const int wordHeight = QFontMetrics(lineFont(largest, true)).height();
    const int detailHeight = detailLines() * captionHeight;
    // Everything has its place whether there is a detail or not, so that neighbours stand in line.
    const int needed = wordHeight + detailHeight + (large ? captionHeight : 0);
    QRect line(blockWidth(sizes_.scale) + kMargin, std::max(0, (height() - kProgressHeight - needed) / 2),
               width() - blockWidth(sizes_.scale) - 2 * kMargin, large ? captionHeight : wordHeight);
    painter.setFont(captions);
    painter.setPen(theme.muted);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, caption_);
    if (large) {
        line.translate(0, captionHeight);
        line.setHeight(wordHeight);
    }
    painter.setFont(lineFont(sizes_.word, true));
    painter.setPen(tone.text);
    painter.drawText(line, (large ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter, word());
    line.translate(0, wordHeight);
    line.setHeight(detailHeight);
    painter.setFont(lineFont(sizes_.detail, false));
    painter.setPen(theme.text);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, detail());
}

void GlanceTile::drawProgress(QPainter& painter, const ToneColours& tone) const {
    if (glance_.progress < 0) return;
    const QRectF bar(blockWidth(sizes_.scale), height() - kProgressHeight, width() - blockWidth(sizes_.scale),
                     kProgressHeight);
    painter.fillRect(bar, currentTheme().line);
    QRectF done = bar;
    done.setWidth(bar.width() * std::min(glance_.progress, 1.0));
    // As dark as the writing: the block of a warning can hardly be told from the rest of the bar.
    painter.fillRect(done, tone.text);
}

}  // namespace quorrin
