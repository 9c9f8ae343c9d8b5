// Qt's mouse and key events as the plain strokes that a button's model takes.
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>

#include "console/command_button_input.h"

namespace quorrin {

MouseStroke mouseStroke(const QMouseEvent& event);
KeyStroke keyStroke(const QKeyEvent& event);

}  // namespace quorrin
