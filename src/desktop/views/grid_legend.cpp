#include "desktop/views/grid_legend.h"

#include <QPainter>
#include <algorithm>

#include "desktop/views/grid_marks.h"

namespace quorrin {

namespace {

constexpr int kMark = 34;  // width of a mark's place
constexpr int kGap = 8;

void drawMark(QPainter& painter, const ViewColours& colours, LegendMark mark, const QRectF& place) {
    const QPointF middle = place.center();
    const QPointF left(place.left() + 2, middle.y());
    const QPointF right(place.right() - 4, middle.y());
    const QPolygonF box(place.adjusted(6, 2, -6, -2));
    const QPolygonF filled(place.adjusted(6, place.height() / 2, -6, -2));
    switch (mark) {
        case LegendMark::obstacle:
            for (int i = 0; i < 3; ++i)
                painter.fillRect(QRectF(place.left() + 3 + i * 9, middle.y() - 4, 9, 8),
                                 mixed(colours.paper, colours.ink, 0.3 + 0.35 * i));
            return;
        case LegendMark::robot:
            drawRobot(painter, colours, middle, middle - QPointF(0, 7));
            return;
        case LegendMark::infraredRay:
            drawRay(painter, colours, RayKind::infrared, left, right, true);
            return;
        case LegendMark::sonarRay:
            drawRay(painter, colours, RayKind::sonar, left, right, true);
            return;
        case LegendMark::blockedSector:
            drawSector(painter, colours, box, filled, true);
            return;
        case LegendMark::freeSector:
            drawSector(painter, colours, box, filled, false);
            return;
        case LegendMark::densityLimit:
            drawLimit(painter, colours, QPolygonF() << left << right);
            return;
        case LegendMark::goalSector:
            drawGoal(painter, colours, middle + QPointF(0, 5), QPointF(0, -1));
            return;
        case LegendMark::heading:
            drawHeading(painter, colours, left, right);
            return;
        case LegendMark::target:
            drawTarget(painter, colours, middle);
            return;
    }
}

}  // namespace

GridLegend::GridLegend(QWidget* parent) : QWidget(parent) {
    setObjectName("gridLegend");
    QString words;
    for (const LegendEntry& entry : gridLegend()) words += QString(entry.words) + "\n";
    setAccessibleName(words.trimmed());
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize GridLegend::entrySize() const {
    const QFontMetrics metrics(font());
    int widest = 0;
    for (const LegendEntry& entry : gridLegend())
        widest = std::max(widest, metrics.horizontalAdvance(entry.words));
    return {kMark + kGap + widest + 2 * kGap, std::max(metrics.height(), 20) + 2};
}

int GridLegend::columnsFor(int width) const {
    return std::clamp(width / entrySize().width(), 1, 5);
}

int GridLegend::heightForWidth(int width) const {
    const int entries = static_cast<int>(gridLegend().size());
    const int columns = columnsFor(width);
    return (entries + columns - 1) / columns * entrySize().height();
}

QSize GridLegend::sizeHint() const {
    const int width = 2 * entrySize().width();
    return {width, heightForWidth(width)};
}

QSize GridLegend::minimumSizeHint() const {
    return {entrySize().width(), entrySize().height()};
}

void GridLegend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ViewColours colours = viewColours(palette());
    const QSize size = entrySize();
    const int columns = columnsFor(width());
    int n = 0;
    for (const LegendEntry& entry : gridLegend()) {
        const QRect place(n % columns * (width() / columns), n / columns * size.height(), size.width(),
                          size.height());
        drawMark(painter, colours, entry.mark,
                 QRectF(place.left(), place.top() + 2, kMark, size.height() - 4));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(place.adjusted(kMark + kGap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                         entry.words);
        ++n;
    }
}

}  // namespace quorrin
