// Outlines in words, the form in which the icons are kept: "M x y" move, "L x y" line, "C x y x y x y" curve,
// "Z" close, "O x y r" circle, "A x y r start sweep" arc (degrees, counter-clockwise from the right),
// "R x y w h r" rounded rectangle. Parts between ";" are drawn with a line; those that begin with "F" are
// filled.
#pragma once

#include <QPainterPath>
#include <QString>
#include <vector>

#include "desktop/theme/icons.h"

namespace quorrin {

struct IconPart {
    bool filled = false;
    QPainterPath path;
};

// A word that is none of these ends the reading; what was read stands.
std::vector<IconPart> readIconParts(const QString& words);

// Draws the parts, scaled from the square of 24 by 24 to the largest square in the middle of the room.
void drawParts(QPainter& painter, const QRectF& room, const std::vector<IconPart>& parts,
               const QColor& colour);

// The outline of an icon in those words; empty for `count`.
QString iconWords(IconName name);

}  // namespace quorrin
