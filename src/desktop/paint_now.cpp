#include "desktop/paint_now.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quorrin {

void paintDirtyWindows() {
    // Texts that have changed may want more room first; what was just shown is dirty only after its own
    // event.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        QEvent paint(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(window, &paint);
    }
}

}  // namespace quorrin
