#include "desktop/forms/tab_walk.h"

#include <QScrollArea>
#include <algorithm>

namespace quorrin {

namespace {

using Panels = std::initializer_list<const QWidget*>;

// The one of the panels that the widget belongs to, or null.
const QWidget* panelOf(const QWidget& widget, Panels panels) {
    const auto found = std::find_if(panels.begin(), panels.end(), [&widget](const QWidget* panel) {
        return panel == &widget || panel->isAncestorOf(&widget);
    });
    return found == panels.end() ? nullptr : *found;
}

// Of two children of one window: later ones are drawn over earlier ones.
bool liesOver(const QWidget& upper, const QWidget& lower) {
    const QObjectList& order = upper.parentWidget()->children();
    return order.indexOf(&upper) > order.indexOf(&lower);
}

bool isCovered(const QWidget& widget, const QWidget& window, Panels panels) {
    const QWidget* const own = panelOf(widget, panels);
    const QRect place =
        own != nullptr ? own->geometry() : QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size());
    return std::any_of(panels.begin(), panels.end(), [&](const QWidget* panel) {
        return !panel->isHidden() && panel != own && (own == nullptr || liesOver(*panel, *own)) &&
               panel->geometry().intersects(place);
    });
}

bool takesTab(const QWidget& widget, const QWidget& window) {
    return &widget != &window && widget.window() == &window && (widget.focusPolicy() & Qt::TabFocus) != 0 &&
           widget.focusProxy() == nullptr && widget.isEnabled() && widget.isVisibleTo(&window);
}

// A scroll area does so only for a walk that begins inside it.
void scrollIntoView(QWidget& widget) {
    for (QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(&widget);
}

}  // namespace

bool walkByTab(QWidget& window, bool next, Panels panels) {
    QWidget* const from = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QWidget* at = from;
    do {
        at = next ? at->nextInFocusChain() : at->previousInFocusChain();
        if (takesTab(*at, window) && !isCovered(*at, window, panels)) {
            at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            scrollIntoView(*at);
            return true;
        }
    } while (at != from);
    return false;
}

}  // namespace quorrin
