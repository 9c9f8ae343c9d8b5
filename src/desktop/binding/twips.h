// Logical pixels as twips.
#pragma once

#include <QRect>

#include "base/area.h"

namespace quorrin {

inline Area twips(const QRect& pixels) {
    return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel, pixels.width() * kTwipsPerPixel,
            pixels.height() * kTwipsPerPixel};
}

}  // namespace quorrin
