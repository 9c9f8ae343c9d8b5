// The picture of a button of any size, put together from the strip that the program carries.
//
// A function of what it is given; the strips are read once and live as long as the program. Sizes are logical
// pixels, the picture has the screen's. A device pixel ratio between two resolutions takes the finer one.
#pragma once

#include <QImage>
#include <QSize>
#include <cstdint>

#include "console/command_button_model.h"

namespace quorrin {

QImage skinnedButton(ButtonState cell, std::int32_t look, QSize size, double devicePixelRatio);

// The strip of that resolution, one of kSkinScales.
const QImage& skinStrip(int scale);

}  // namespace quorrin
