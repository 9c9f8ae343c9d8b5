#include "desktop/views/grid_marks.h"

#include <QPaintDevice>
#include <cmath>

namespace quorrin {

namespace {

constexpr double kEnd = 3;    // radius of a ray's end
constexpr double kArrow = 9;  // length of an arrow's head
constexpr double kArrowHalf = 4.5;
constexpr double kTarget = 6;

QPointF across(QPointF along) {
    return {-along.y(), along.x()};
}

double thin(const QPainter& painter) {
    return thinLine(painter.device()->devicePixelRatioF());
}

QPointF unit(QPointF along) {
    const double length = std::hypot(along.x(), along.y());
    return length > 0 ? along / length : QPointF(0, -1);
}

}  // namespace

void drawRay(QPainter& painter, const ViewColours& colours, RayKind kind, QPointF from, QPointF to,
             bool obstacle) {
    const bool infrared = kind == RayKind::infrared;
    const QColor& colour = infrared ? colours.infrared : colours.sonar;
    painter.setPen(QPen(colour, thin(painter), infrared ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(from, to);
    if (!obstacle) return;
    painter.setPen(QPen(colour, 1.5));
    painter.setBrush(infrared ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawEllipse(to, kEnd, kEnd);
}

void drawSector(QPainter& painter, const ViewColours& colours, const QPolygonF& whole,
                const QPolygonF& density, bool blocked) {
    const QColor& colour = blocked ? colours.blocked : colours.free;
    painter.setPen(QPen(colour, 0));
    painter.setBrush(blocked ? QBrush(colour, Qt::BDiagPattern) : QBrush(Qt::NoBrush));
    painter.drawPolygon(whole);
    if (density.isEmpty()) return;
    QColor fill = colour;
    fill.setAlphaF(0.55F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(density);
}

void drawLimit(QPainter& painter, const ViewColours& colours, const QPolygonF& line) {
    painter.setPen(QPen(colours.ink, thin(painter), Qt::DotLine));
    painter.drawPolyline(line);
}

void drawGoal(QPainter& painter, const ViewColours& colours, QPointF tip, QPointF outwards) {
    const QPointF out = unit(outwards);
    const QPointF base = tip + out * kArrow;
    painter.setPen(QPen(colours.paper, 1));
    painter.setBrush(colours.guidance);
    const QPointF corners[] = {tip, base + across(out) * kArrowHalf * 1.4,
                               base - across(out) * kArrowHalf * 1.4};
    painter.drawPolygon(corners, 3);
}

void drawHeading(QPainter& painter, const ViewColours& colours, QPointF from, QPointF to) {
    const QPointF along = unit(to - from);
    const QPointF neck = to - along * kArrow;
    painter.setPen(QPen(colours.guidance, 2.5));
    painter.drawLine(from, neck);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.guidance);
    const QPointF corners[] = {to, neck + across(along) * kArrowHalf, neck - across(along) * kArrowHalf};
    painter.drawPolygon(corners, 3);
}

void drawTarget(QPainter& painter, const ViewColours& colours, QPointF at) {
    painter.setPen(QPen(colours.guidance, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(at, kTarget, kTarget);
    painter.drawLine(at - QPointF(kTarget * 1.5, 0), at + QPointF(kTarget * 1.5, 0));
    painter.drawLine(at - QPointF(0, kTarget * 1.5), at + QPointF(0, kTarget * 1.5));
}

void drawRobot(QPainter& painter, const ViewColours& colours, QPointF centre, QPointF nose) {
    const QPointF ahead = nose - centre;
    const double radius = std::hypot(ahead.x(), ahead.y());
    QColor fill = colours.paper;
    fill.setAlphaF(0.7F);
    painter.setPen(QPen(colours.robot, 2));
    painter.setBrush(fill);
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.robot);
    const QPointF corners[] = {nose, centre + across(ahead) * 0.45, centre - across(ahead) * 0.45};
    painter.drawPolygon(corners, 3);
}

}  // namespace quorrin
