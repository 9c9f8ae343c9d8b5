// What is wrong with how a window's widgets lie: each fault as a line that names the widget.
//
// A widget that does not lie inside its parent, one that has less room than it asks for, and two
// neighbours that overlap. What lies in a scroll area may be larger than the area. Widgets that others are
// meant to be covered by are named by the caller.
#pragma once

#include <QSet>
#include <QWidget>
#include <string>
#include <vector>

namespace quorrin {

std::vector<std::string> layoutFaults(const QWidget& window, const QSet<QString>& covering);

}  // namespace quorrin
