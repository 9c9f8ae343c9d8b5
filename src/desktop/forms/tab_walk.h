// Tab in a window over which panels fold out: it passes over what lies under an open one, wholly or in part.
//
// Looks only at how widgets lie at that moment, so that nothing has to be put back when a panel closes. What
// is seen beside a panel can still be reached with the mouse. Of two panels that overlap, the lower one is
// passed over as a whole. What is scrolled out of sight comes into it.
#pragma once

#include <QWidget>
#include <initializer_list>

namespace quorrin {

// `panels` are children of the window. False when there is nothing to go to.
bool walkByTab(QWidget& window, bool next, std::initializer_list<const QWidget*> panels);

}  // namespace quorrin
