// A control's colour as Qt's.
#pragma once

#include <QColor>

#include "base/controls.h"

namespace quorrin {

inline QColor windowColour(Colour colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

}  // namespace quorrin
