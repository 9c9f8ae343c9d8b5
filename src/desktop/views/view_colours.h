// The colours of the live views, taken from the theme that a palette stands for.
//
// What is told by colour is told by shape, line or word too. Letters and lines on the paper keep a contrast
// of 4.5 to 1.
#pragma once

#include <QColor>
#include <QPalette>
#include <array>

#include "console/chart_plans.h"

namespace quorrin {

struct ViewColours {
    QColor paper;
    QColor ink;
    QColor quiet;    // words of second rank
    QColor lattice;  // lines behind everything
    QColor outside;  // beyond the grid
    QColor infrared;
    QColor sonar;
    QColor blocked;
    QColor free;
    QColor guidance;  // goal, heading, target
    QColor robot;
    QColor focus;  // ring of the view that has the keys
    std::array<QColor, kMostTraces> traces;
};

ViewColours viewColours(const QPalette& palette);

// Width of a thin line: one dot, or one point where dots are so fine that a line of one would get lost. A pen
// of width 0 is much cheaper than one of width 1.
inline double thinLine(double dotsPerPoint) {
    return dotsPerPoint < 1.4 ? 0 : 1;
}

QColor mixed(const QColor& from, const QColor& to, double share);

}  // namespace quorrin
