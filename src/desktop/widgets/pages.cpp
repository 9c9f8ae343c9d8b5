#include "desktop/widgets/pages.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QShortcut>
#include <algorithm>

#include "desktop/theme/theme.h"
#include "desktop/widgets/command.h"

namespace quorrin {

PageTabs::PageTabs(const QString& name, const QString& spoken) {
    setObjectName(name);
    setAccessibleName(spoken);
    setFocusPolicy(Qt::StrongFocus);
    setDrawBase(false);
    setExpanding(false);
    setElideMode(Qt::ElideNone);
    setUsesScrollButtons(false);
}

void PageTabs::paintEvent(QPaintEvent* event) {
    QTabBar::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(currentTheme().focus, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

Pages::Pages(const QString& name, const QString& spoken)
    : tabs_(new PageTabs(name, spoken)), row_(new QHBoxLayout(this)) {
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(currentTheme().gap);
    QObject::connect(tabs_, &QTabBar::currentChanged, this, [this] { follow(); });
}

void Pages::add(QWidget* page, const PageWords& words) {
    pages_.push_back(page);
    keys_.emplace_back(QString::fromStdString(words.shortcut));
    row_->addWidget(page, 1);
    const int index = tabs_->addTab(QString::fromStdString(words.name));
    tabs_->setTabToolTip(index, QString::fromStdString(words.tip + " " + words.shortcut + "."));
    follow();
}

void Pages::keepShortcuts(QWidget& holder) {
    for (auto* keys : findChildren<QShortcut*>()) {
        auto* const owner = qobject_cast<QWidget*>(keys->parent());
        keys->setParent(&holder);
        QObject::connect(owner, &QObject::destroyed, keys, [keys] { keys->setEnabled(false); });
        // A key acts from afar; anything else is gone to.
        if (owner->inherits("QAbstractButton") || dynamic_cast<Command*>(owner) != nullptr) continue;
        QObject::connect(keys, &QShortcut::activated, owner, [this, owner] {
            bringUp(*owner);
            owner->setFocus(Qt::ShortcutFocusReason);
        });
    }
    for (std::size_t i = 0; i < keys_.size(); ++i) {
        auto* const keys = new QShortcut(keys_[i], &holder);
        QObject::connect(keys, &QShortcut::activated, this, [this, i] { turnTo(static_cast<int>(i)); });
    }
}

void Pages::setTogether(bool together) {
    together_ = together;
    tabs_->setVisible(!together);
    follow();
}

void Pages::follow() {
    const QWidget* const holder = window()->focusWidget();
    const auto isSeen = [this](std::size_t i) {
        return together_ || pages_[i] == pages_[static_cast<std::size_t>(std::max(0, page()))];
    };
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (isSeen(i)) continue;
        // Left to itself the keyboard would go to whatever follows, which may be on another panel.
        if (holder != nullptr && pages_[i]->isAncestorOf(holder)) tabs_->setFocus(Qt::OtherFocusReason);
        pages_[i]->hide();
    }
    for (std::size_t i = 0; i < pages_.size(); ++i)
        if (isSeen(i)) pages_[i]->show();
    if (onTurned) onTurned(page());
}

void Pages::bringUp(const QWidget& inside) {
    for (std::size_t i = 0; i < pages_.size(); ++i)
        if (pages_[i]->isAncestorOf(&inside) && !pages_[i]->isVisibleTo(this)) turnTo(static_cast<int>(i));
}

}  // namespace quorrin
