#include "desktop/layout_faults.h"

#include <QAbstractScrollArea>
#include <QLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <algorithm>

#include "desktop/tiles/glance_tile.h"

namespace quorrin {

namespace {

std::string nameOf(const QWidget& widget) {
    const QWidget* named = &widget;
    while (named->objectName().isEmpty() && named->parentWidget() != nullptr) named = named->parentWidget();
    return std::string(widget.metaObject()->className()) + " " + named->objectName().toStdString() + " \"" +
           widget.accessibleName().toStdString() + "\"";
}

std::string sizeText(QSize size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

class Walk {
  public:
    explicit Walk(const QSet<QString>& covering) : covering_(covering) {}

    void over(const QWidget& parent) {
        std::vector<const QWidget*> children;
        for (const QObject* object : parent.children()) {
            const auto* child = qobject_cast<const QWidget*>(object);
            if (child != nullptr && !child->isWindow() && child->isVisible()) children.push_back(child);
        }
        for (const QWidget* child : children) {
            // What scrolls may be larger than what it is seen through; the floor plan's viewport is such a
            // place too.
            const bool scrolls = qobject_cast<const QScrollArea*>(parent.parentWidget()) != nullptr ||
                                 parent.objectName() == QLatin1String("Frame1");
            if (!scrolls && !parent.rect().contains(child->geometry()))
                faults.push_back(nameOf(*child) + " is not inside " + nameOf(parent));
            look(*child);
        }
        overlaps(children);
    }

    std::vector<std::string> faults;

  private:
    // What a widget asks for at least, be it by its texts or by what it draws itself.
    void needs(const QWidget& widget) {
        QSize needed = widget.minimumSizeHint();
        // A layout asks for the height that it likes best, and can do with less.
        if (widget.layout() == nullptr && widget.hasHeightForWidth())
            needed.setHeight(std::max(needed.height(), widget.heightForWidth(widget.width())));
        if (needed.width() > widget.width() || needed.height() > widget.height())
            faults.push_back(nameOf(widget) + " is " + sizeText(widget.size()) + " and needs " +
                             sizeText(needed));
    }

    void look(const QWidget& widget) {
        if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
            const int edges = edit->hasFrame() ? 12 : 4;
            const int text = edit->fontMetrics().horizontalAdvance(edit->text()) + edges;
            if (text > edit->width() || edit->fontMetrics().height() > edit->height())
                faults.push_back(nameOf(widget) + " is too small for " + edit->text().toStdString());
            return;
        }
        if (const auto* tile = dynamic_cast<const GlanceTile*>(&widget)) {
            if (!tile->whole()) faults.push_back(nameOf(widget) + " does not show its whole text");
            return;
        }
        // The insides of lists and the like are the toolkit's. They scroll: two lines are enough.
        const bool list = qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr &&
                          qobject_cast<const QScrollArea*>(&widget) == nullptr;
        if (list) {
            if (widget.height() < 2 * widget.fontMetrics().height())
                faults.push_back(nameOf(widget) + " shows less than two lines");
            return;
        }
        needs(widget);
        over(widget);
    }

    void overlaps(const std::vector<const QWidget*>& siblings) {
        for (std::size_t i = 0; i < siblings.size(); ++i) {
            for (std::size_t j = i + 1; j < siblings.size(); ++j) {
                if (covering_.contains(siblings[i]->objectName()) ||
                    covering_.contains(siblings[j]->objectName()))
                    continue;
                if (siblings[i]->geometry().intersects(siblings[j]->geometry()))
                    faults.push_back(nameOf(*siblings[i]) + " overlaps " + nameOf(*siblings[j]));
            }
        }
    }

    const QSet<QString>& covering_;
};

}  // namespace

std::vector<std::string> layoutFaults(const QWidget& window, const QSet<QString>& covering) {
    Walk walk(covering);
    walk.over(window);
    return walk.faults;
}

}  // namespace quorrin
