#include "desktop/forms/fold_out.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <utility>

#include "desktop/forms/placing.h"
#include "desktop/theme/theme.h"

namespace quorrin {

FoldOut::FoldOut(const QString& title, QWidget* closeKey, QWidget* contents, QWidget* over)
    : QWidget(over), area_(new QScrollArea), closeKey_(closeKey), contents_(contents), head_(new QWidget) {
    const Theme& theme = currentTheme();
    ShadowLabel* const label = captionLabel(title);
    QFont large = label->font();
    large.setPointSizeF(large.pointSizeF() * theme.headingSize);
    large.setWeight(QFont::DemiBold);
    label->setFont(large);
    auto* line = new QHBoxLayout(head_);
    line->setContentsMargins(theme.gap, 0, 0, 0);
    line->addWidget(label, 1);
    line->addWidget(closeKey);
    area_->setWidget(contents);
    area_->setWidgetResizable(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->viewport()->setAutoFillBackground(false);
    contents->setAutoFillBackground(false);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(theme.space, theme.gap, theme.space, theme.space);
    all->setSpacing(theme.gap);
    all->addWidget(head_);
    all->addWidget(area_, 1);
    setAccessibleName(title);
}

void FoldOut::putInHead(QWidget* widget) {
    auto* const line = static_cast<QHBoxLayout*>(head_->layout());
    line->insertWidget(line->count() - 1, widget);
}

QSize FoldOut::wholeSize() const {
    const Theme& theme = currentTheme();
    const QSize needed = contents_->minimumSizeHint();
    return {needed.width() + 2 * theme.space + 14,
            needed.height() + head_->minimumSizeHint().height() + 2 * theme.gap + theme.space + 2};
}

bool FoldOut::event(QEvent* event) {
    if (event->type() == QEvent::HideToParent) open_ = false;
    return QWidget::event(event);
}

void FoldOut::showEvent(QShowEvent*) {
    if (std::exchange(open_, true)) return;
    raise();
    before_ = window()->focusWidget();
    closeKey_->setFocus(Qt::OtherFocusReason);
}

void FoldOut::hideEvent(QHideEvent*) {
    const bool onlyTheWindow = !isHidden();
    const QWidget* const holder = window()->focusWidget();
    if (onlyTheWindow || holder == nullptr || !isAncestorOf(holder)) return;
    if (before_ && before_->isVisible() && before_->isEnabled()) before_->setFocus(Qt::OtherFocusReason);
}

void FoldOut::paintEvent(QPaintEvent*) {
    const Theme& theme = currentTheme();
    QPainter painter(this);
    painter.fillRect(rect(), theme.window);
    painter.setPen(QPen(theme.outline, 1));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace quorrin
