// How each thing of the grid's picture is drawn: the same marks in the picture and in its legend.
//
// The painter is in widget points, antialiased; whoever calls brings the places there.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QPolygonF>

#include "console/grid_picture.h"
#include "desktop/views/view_colours.h"

namespace quorrin {

// A ray with its end: infrared solid with a dot, sonar dashed with a ring; nothing at the end of an open one.
void drawRay(QPainter& painter, const ViewColours& colours, RayKind kind, QPointF from, QPointF to,
             bool obstacle);
// A sector of the ring: its whole depth as outline (hatched when blocked), its density filled.
void drawSector(QPainter& painter, const ViewColours& colours, const QPolygonF& whole,
                const QPolygonF& density, bool blocked);
void drawLimit(QPainter& painter, const ViewColours& colours, const QPolygonF& line);
// A wedge that points from outside at the ring.
void drawGoal(QPainter& painter, const ViewColours& colours, QPointF tip, QPointF outwards);
void drawHeading(QPainter& painter, const ViewColours& colours, QPointF from, QPointF to);
void drawTarget(QPainter& painter, const ViewColours& colours, QPointF at);
// `nose` is a place ahead of the centre, at the robot's edge.
void drawRobot(QPainter& painter, const ViewColours& colours, QPointF centre, QPointF nose);

}  // namespace quorrin
