#include "desktop/skin/skin_strip.h"

#include <QLinearGradient>
#include <QPainter>
#include <cstddef>

namespace quorrin {

namespace {

// The corners' rounding is as large as the border that is never stretched.
constexpr double kRadius = kSliceBorder;

void drawCell(QPainter& painter, const CellColours& colours, const QRectF& cell) {
    QLinearGradient face(cell.topLeft(), cell.bottomLeft());
    face.setColorAt(0, colours.top);
    face.setColorAt(1, colours.bottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.edge);
    painter.drawRoundedRect(cell, kRadius, kRadius);
    // A line of one unit, on which the face lies; nothing of it may shine through a clear face.
    const QRectF inner = cell.adjusted(1, 1, -1, -1);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setBrush(face);
    painter.setClipRect(inner);
    painter.drawRoundedRect(inner, kRadius - 1, kRadius - 1);
    painter.setClipping(false);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}  // namespace

QImage drawSkinStrip(int scale) {
    QImage strip(kButtonStates * kCellUnits * scale, kLooks * kCellUnits * scale,
                 QImage::Format_ARGB32_Premultiplied);
    strip.fill(Qt::transparent);
    QPainter painter(&strip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    for (int look = 0; look < kLooks; ++look) {
        for (int state = 0; state < kButtonStates; ++state) {
            drawCell(painter, skinLook(look).states[static_cast<std::size_t>(state)],
                     QRectF(state * kCellUnits, look * kCellUnits, kCellUnits, kCellUnits));
        }
    }
    return strip;
}

SliceRect skinCell(int state, std::int32_t look, int scale) {
    const int row = look >= 0 && look < kLooks ? static_cast<int>(look) : 0;
    const int side = kCellUnits * scale;
    return {state * side, row * side, side, side};
}

QString skinFileName(int scale) {
    return QStringLiteral("buttons_%1x.png").arg(scale);
}

}  // namespace quorrin
