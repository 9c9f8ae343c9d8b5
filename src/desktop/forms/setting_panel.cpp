#include "desktop/forms/setting_panel.h"

#include <algorithm>

#include "console/control_words.h"
#include "desktop/binding/bind.h"
#include "desktop/forms/setting_groups.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/pages.h"

namespace quorrin {

namespace {

QWidget* pageOf(const std::array<QVBoxLayout*, 3>& columns) {
    auto* const page = new QWidget;
    QHBoxLayout* const all = row({});
    all->setSpacing(currentTheme().gap);
    for (QVBoxLayout* column : columns) all->addLayout(column, 1);
    page->setLayout(all);
    return page;
}

std::array<QVBoxLayout*, 3> columns() {
    std::array<QVBoxLayout*, 3> made{};
    for (QVBoxLayout*& one : made) {
        one = column({});
        one->setSpacing(currentTheme().gap);
    }
    return made;
}

// The groups under one another; the last may take the room that is left over, or leaves it below.
void fill(QVBoxLayout& column, std::initializer_list<QWidget*> groups, QWidget* growing = nullptr) {
    while (column.count() > 0) {
        QLayoutItem* const item = column.takeAt(0);
        delete item;
    }
    for (QWidget* group : groups) column.addWidget(group, group == growing ? 1 : 0);
    if (growing == nullptr && groups.size() > 0) column.addStretch(1);
}

}  // namespace

SettingPanel::SettingPanel(Placing& place, Frame& frame, const OperatorActs& acts, QWidget* over)
    : pages_(contents(place)),
      panel_(new FoldOut(QString::fromStdString(frameTitle("fraSetting")),
                         place.key("cmdCloseSetting", IconName::close), pages_, over)) {
    place.factory().dress(*panel_, frame);
    bind(*panel_, frame, acts);
    pages_->keepShortcuts(*panel_);
    panel_->putInHead(&pages_->tabs());
    pages_->setTogether(true);
}

Pages* SettingPanel::contents(Placing& place) {
    battery_ = batteryGroup(place, lamps_);
    sound_ = soundGroup(place);
    review_ = reviewGroup(place);
    capture_ = captureGroup(place);
    sending_ = sendingGroup(place);
    received_ = receivedGroup(place);
    quality_ = imageQualityGroup(place);
    photos_ = columns();
    remote_ = columns();
    deal(true);
    auto* const all =
        new Pages(QStringLiteral("settingPages"), QString::fromStdString(frameName("settingPages")));
    all->add(pageOf(photos_), pageWords(PanelPage::photos));
    all->add(pageOf(remote_), pageWords(PanelPage::remoteData));
    return all;
}

void SettingPanel::deal(bool together) {
    if (together) {
        fill(*photos_[0], {battery_, sound_});
        fill(*photos_[1], {review_, capture_}, review_);
        fill(*photos_[2], {});
        fill(*remote_[1], {received_, quality_});
        fill(*remote_[2], {});
    } else {
        fill(*photos_[0], {battery_});
        fill(*photos_[1], {sound_, capture_});
        fill(*photos_[2], {review_}, review_);
        fill(*remote_[1], {received_});
        fill(*remote_[2], {quality_});
    }
    fill(*remote_[0], {sending_});
}

int SettingPanel::arrange(QSize room) {
    if (pages_->together()) whole_ = panel_->wholeSize();
    const bool together = whole_.width() <= room.width() && whole_.height() <= room.height();
    if (together != pages_->together()) {
        deal(together);
        pages_->setTogether(together);
    }
    return std::min(room.width(), whole_.width());
}

}  // namespace quorrin
