// What a screen reader is told of the console's own controls: a button with its press, a text.
#pragma once

#include <QWidget>

namespace quorrin {

// Makes them known to the toolkit; more than once does nothing more.
void announceAccessibleControls();

// The control's caption, and with it its name, has changed.
void announceNewName(QWidget& control);

}  // namespace quorrin
