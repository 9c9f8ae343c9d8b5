#include "desktop/paint_now.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quorrin {

void paintDirtyWindows() {
    // Texts that have changed may want more room first.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        QEvent paint(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(window, &paint);
    }
}

}  // namespace quorrin
