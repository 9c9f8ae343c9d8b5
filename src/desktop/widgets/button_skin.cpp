#include "desktop/widgets/button_skin.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "console/nine_slice.h"
#include "desktop/skin/skin_strip.h"

namespace quorrin {

namespace {

std::array<QImage, kSkinScales.size()> readStrips() {
    std::array<QImage, kSkinScales.size()> strips;
    for (std::size_t at = 0; at < strips.size(); ++at) {
        strips[at] = QImage(":/skin/" + skinFileName(kSkinScales[at]))
                         .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return strips;
}

int scaleFor(double devicePixelRatio) {
    for (const int scale : kSkinScales) {
        if (scale >= devicePixelRatio) return scale;
    }
    return kSkinScales.back();
}

}  // namespace

const QImage& skinStrip(int scale) {
    static const auto strips = readStrips();
    const auto* found = std::find(kSkinScales.begin(), kSkinScales.end(), scale);
    const auto* known = found == kSkinScales.end() ? kSkinScales.begin() : found;
    return strips[static_cast<std::size_t>(known - kSkinScales.begin())];
}

QImage skinnedButton(ButtonState cell, std::int32_t look, QSize size, double devicePixelRatio) {
    const int scale = scaleFor(devicePixelRatio);
    const QImage& strip = skinStrip(scale);
    const QSize pixels(static_cast<int>(std::lround(size.width() * devicePixelRatio)),
                       static_cast<int>(std::lround(size.height() * devicePixelRatio)));
    QImage picture(pixels.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const int border = static_cast<int>(std::lround(kSliceBorder * devicePixelRatio));
    for (const Slice& slice : nineSlices(skinCell(static_cast<int>(cell), look, scale), kSliceBorder * scale,
                                         {0, 0, pixels.width(), pixels.height()}, border)) {
        if (slice.target.empty()) continue;
        // Cut out first: stretching must not mix in the neighbours' pixels.
        const QImage piece =
            strip.copy(slice.source.left, slice.source.top, slice.source.width, slice.source.height)
                .scaled(slice.target.width, slice.target.height, Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
        painter.drawImage(slice.target.left, slice.target.top, piece);
    }
    painter.end();
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

}  // namespace quorrin
