// Colours and fonts of the console's controls, as Qt has them.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "base/colour_mix.h"
#include "console/property_bag.h"
#include "desktop/binding/window_colour.h"

namespace quorrin {

Colour plainColour(const QColor& colour);

// The plain colours that system colour references stand for in windows of that palette.
SystemColours systemColours(const QPalette& palette);

// An ambient font choice is the given font.
QFont fontOf(const FontChoice& choice, const QFont& ambient);

}  // namespace quorrin
