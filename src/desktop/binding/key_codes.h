// Qt's keys as the numbers that the forms know: 37 to 40 the arrows, 32 space, 8 backspace and so on; letters
// and figures by their own, what has no number of its own as 255.
#pragma once

#include <QKeyEvent>

namespace quorrin {

int keyCode(const QKeyEvent& event);

}  // namespace quorrin
