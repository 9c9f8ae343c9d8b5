#include "desktop/tiles/glance_tile.h"

#include <QEvent>
#include <QFontMetrics>
#include <algorithm>

namespace quorrin {

namespace {

constexpr int kMargin = GlanceTile::kMargin;
constexpr int kProgressHeight = GlanceTile::kProgressHeight;
constexpr double kSmallestDetail = 0.6;  // of the application's font
constexpr double kLargestScale = 2;
constexpr double kStep = 0.04;

}  // namespace

const ToneColours& toneColours(const Theme& theme, Tone tone) {
    switch (tone) {
        case Tone::good:
            return theme.good;
        case Tone::busy:
            return theme.busy;
        case Tone::warning:
            return theme.warning;
        case Tone::bad:
            return theme.bad;
        case Tone::off:
            break;
    }
    return theme.off;
}

GlanceTile::GlanceTile(Kind kind, IconName picture, const QString& caption, QWidget* parent)
    : QWidget(parent), kind_(kind), picture_(picture), caption_(caption) {
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    setAccessibleName(caption);
}

void GlanceTile::show(const Glance& glance) {
    const bool same = glance.word == glance_.word && glance.detail == glance_.detail &&
                      glance.tone == glance_.tone && glance.progress == glance_.progress;
    if (same) return;
    const bool texts = glance.word != glance_.word || glance.detail != glance_.detail;
    glance_ = glance;
    if (texts) {
        setAccessibleDescription(QString(word() + QLatin1Char(' ') + detail()).trimmed());
        setToolTip(detail());
        updateGeometry();
        measure();
    }
    update();
}

void GlanceTile::setPicture(IconName picture) {
    if (picture == picture_) return;
    picture_ = picture;
    update();
}

QFont GlanceTile::lineFont(double factor, bool bold) const {
    QFont line = font();
    line.setPointSizeF(font().pointSizeF() * factor);
    line.setWeight(bold ? QFont::DemiBold : QFont::Normal);
    return line;
}

int GlanceTile::blockWidth(double scale) const {
    return static_cast<int>(scale * fontMetrics().height() * (kind_ == Kind::large ? 3.6 : 3));
}

int GlanceTile::detailLines() const {
    return kind_ == Kind::large ? 3 : kind_ == Kind::small ? 2 : 1;
}

QSize GlanceTile::sizeHint() const {
    const Theme& theme = currentTheme();
    const bool large = kind_ == Kind::large;
    const QFontMetrics captions(lineFont(theme.captionSize, false));
    const double most = large ? theme.displaySize : theme.wordSize;
    const double least = large ? theme.headingSize : theme.titleSize;
    const int captionWidth = captions.horizontalAdvance(caption_);
    const int wordWidth = QFontMetrics(lineFont(least, true)).horizontalAdvance(word());
    const int wordHeight = QFontMetrics(lineFont(most, true)).height();
    const int line = large ? std::max(captionWidth, wordWidth) : captionWidth + theme.space + wordWidth;
    const int above = large ? captions.height() + wordHeight : wordHeight;
    return {blockWidth(1) + line + 2 * kMargin + 2,
            above + detailLines() * captions.height() + kMargin + kProgressHeight};
}

void GlanceTile::measure() {
    const Theme& theme = currentTheme();
    const bool large = kind_ == Kind::large;
    Sizes fit;
    fit.scale = std::clamp(static_cast<double>(height()) / sizeHint().height(), 1.0, kLargestScale);
    fit.caption = theme.captionSize * fit.scale;
    const QFontMetrics captions(lineFont(fit.caption, false));
    const int room = width() - blockWidth(fit.scale) - 2 * kMargin;
    const int beside = large ? 0 : captions.horizontalAdvance(caption_) + theme.space;
    const double least = large ? theme.headingSize : theme.titleSize;
    fit.word = (large ? theme.displaySize : theme.wordSize) * fit.scale;
    while (fit.word > least &&
           QFontMetrics(lineFont(fit.word, true)).horizontalAdvance(word()) > room - beside)
        fit.word = std::max(least, fit.word - kStep);
    fit.detail = fit.caption;
    const QRect lines(0, 0, room, captions.height() * detailLines());
    const auto fits = [&] {
        const QFontMetrics details(lineFont(fit.detail, false));
        return lines.contains(details.boundingRect(lines, Qt::TextWordWrap, detail()));
    };
    while (fit.detail > kSmallestDetail && !fits()) fit.detail -= kStep;
    fit.whole = fits() && QFontMetrics(lineFont(fit.word, true)).horizontalAdvance(word()) <= room - beside;
    sizes_ = fit;
}

void GlanceTile::resizeEvent(QResizeEvent*) {
    measure();
}

void GlanceTile::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        measure();
    }
    QWidget::changeEvent(event);
}

}  // namespace quorrin
