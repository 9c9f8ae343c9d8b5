#include "desktop/forms/left_column.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "console/control_words.h"
#include "console/glance_words.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/map_overview.h"

namespace quorrin {

namespace {

constexpr int kListLines = 2;
constexpr int kOverviewHeight = 64;

}  // namespace

LeftColumn::LeftColumn(Placing& place, MapControls& map, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("fra(2)"));
    setAccessibleName(QString::fromStdString(frameName("fra(2)")));
    groups_ = {drives(place), power(place), network(place), overview(place, map)};
    auto* all = new QGridLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(currentTheme().gap);
    order(false);
}

Group* LeftColumn::drives(Placing& place) {
    stuck_ = new GlanceTile(GlanceTile::Kind::small, IconName::stuck,
                            QString::fromStdString(glanceCaption(GlanceName::stuck)));
    stuck_->setObjectName(QStringLiteral("glance.stuck"));
    stuck_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* contents = new QVBoxLayout;
    contents->setSpacing(currentTheme().gap);
    contents->addLayout(lamps_.make(place, {5, 6}), 1);
    contents->addWidget(stuck_);
    return group("frmMotor", contents);
}

Group* LeftColumn::power(Placing& place) {
    return group("fra(13)", lamps_.make(place, {0, 1, 2, 3}));
}

Group* LeftColumn::network(Placing& place) {
    QWidget* const list = place.control("ConnectionList");
    list->setMinimumHeight(kListLines * (list->fontMetrics().height() + 4) + 6);
    auto* lights = new QHBoxLayout;
    lights->setSpacing(currentTheme().space);
    for (const char* name : {"imgNetwork", "imgStatus", "inLight", "outLight"}) {
        QWidget* const light = place.control(name);
        const int side = light->fontMetrics().height() + 6;
        light->setFixedSize(side, side);
        lights->addWidget(light);
        signs_.emplace_back(dynamic_cast<const Picture*>(place.form().find(name)), light);
    }
    lights->addStretch(1);
    auto* contents = new QVBoxLayout;
    contents->setSpacing(currentTheme().gap);
    contents->addWidget(place.control("chkRemote"));
    auto* heading = new QHBoxLayout;
    heading->addWidget(place.caption("ConnectionList"));
    heading->addLayout(lights);
    contents->addLayout(heading);
    contents->addWidget(list, 1);
    return group("fraNetwork", contents);
}

Group* LeftColumn::overview(Placing& place, MapControls& controls) {
    auto* const thumb = new MapOverview(place.factory(), controls);
    thumb->setMinimumSize(kOverviewHeight * 3 / 2, kOverviewHeight);
    thumb->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    return group("fra(10)", column({thumb}));
}

void LeftColumn::refresh(const PublicValues& values, const frmGUI& gui, const Glance& stuck) {
    lamps_.refresh(values, gui);
    stuck_->show(stuck);
    for (const auto& [picture, light] : signs_) {
        const QString word = QString::fromStdString(pictureWord(picture->name(), picture->number()));
        if (light->accessibleDescription() == word) continue;
        light->setAccessibleDescription(word);
        light->setToolTip(word);
    }
}

void LeftColumn::arrange(int height) {
    int needed = 3 * currentTheme().gap;
    for (const Group* one : groups_) needed += one->minimumSizeHint().height();
    if ((needed <= height) != high_) order(!high_);
}

QSize LeftColumn::minimumSizeHint() const {
    const auto height = [this](std::size_t i) { return groups_[i]->minimumSizeHint().height(); };
    const int low = std::max(height(0), height(1)) + currentTheme().gap + std::max(height(2), height(3));
    return {layout()->minimumSize().width(), low};
}

void LeftColumn::order(bool high) {
    high_ = high;
    auto* const all = static_cast<QGridLayout*>(layout());
    for (int i = 0; i < 4; ++i) {
        all->removeWidget(groups_[static_cast<std::size_t>(i)]);
        all->addWidget(groups_[static_cast<std::size_t>(i)], high ? i : i / 2, high ? 0 : i % 2);
        all->setRowStretch(i, high ? (i >= 2 ? 1 : 0) : (i == 1 ? 1 : 0));
    }
}

}  // namespace quorrin
