// The style sheet of the windows, made from a theme; what it does not name is drawn after the palette.
#pragma once

#include <QPalette>
#include <QString>

#include "desktop/theme/theme.h"

namespace quorrin {

QString styleSheet(const Theme& theme);
QPalette palette(const Theme& theme);

}  // namespace quorrin
