#include "desktop/widgets/flow_columns.h"

#include <QEvent>
#include <QResizeEvent>
#include <algorithm>
#include <utility>

namespace quorrin {

FlowColumns::FlowColumns(std::vector<QWidget*> widgets, int gap, QWidget* parent)
    : QWidget(parent), widgets_(std::move(widgets)), gap_(gap) {
    for (QWidget* widget : widgets_) widget->setParent(this);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int FlowColumns::columnWidth() const {
    int widest = 1;
    for (const QWidget* widget : widgets_) widest = std::max(widest, widget->minimumSizeHint().width());
    return widest;
}

int FlowColumns::deal(int width, std::vector<QRect>& places) const {
    const int count = std::clamp((width + gap_) / (columnWidth() + gap_), 1,
                                 std::max(1, static_cast<int>(widgets_.size())));
    const int each = (width - (count - 1) * gap_) / count;
    std::vector<int> heights(static_cast<std::size_t>(count), 0);
    for (const QWidget* widget : widgets_) {
        const auto column = std::min_element(heights.begin(), heights.end());
        const int x = static_cast<int>(column - heights.begin()) * (each + gap_);
        const int height = widget->minimumSizeHint().height();
        places.emplace_back(x, *column, each, height);
        *column += height + gap_;
    }
    return *std::max_element(heights.begin(), heights.end()) - gap_;
}

QSize FlowColumns::minimumSizeHint() const {
    std::vector<QRect> places;
    return {columnWidth(), deal(std::max(width(), columnWidth()), places)};
}

int FlowColumns::heightForWidth(int width) const {
    std::vector<QRect> places;
    return deal(width, places);
}

void FlowColumns::place() {
    std::vector<QRect> places;
    const int height = deal(width(), places);
    for (std::size_t i = 0; i < widgets_.size(); ++i) widgets_[i]->setGeometry(places[i]);
    setMinimumHeight(height);
}

void FlowColumns::resizeEvent(QResizeEvent*) {
    place();
}

bool FlowColumns::event(QEvent* event) {
    // A child that needs another size asks for a new layout.
    if (event->type() == QEvent::LayoutRequest) place();
    return QWidget::event(event);
}

}  // namespace quorrin
