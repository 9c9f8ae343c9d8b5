#include "desktop/forms/sensor_panel.h"

#include <QPushButton>

#include "console/control_words.h"
#include "desktop/binding/bind.h"
#include "desktop/forms/sensor_groups.h"
#include "desktop/theme/theme.h"
#include "desktop/views/live_views.h"
#include "desktop/widgets/pages.h"

namespace quorrin {

namespace {

// The groups beside one another, each as high as the highest, and the rest of the room below.
QWidget* pageOf(std::initializer_list<QWidget*> groups) {
    auto* const page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    QHBoxLayout* const line = row(groups);
    line->setSpacing(currentTheme().gap);
    rows->addLayout(line);
    rows->addStretch(1);
    return page;
}

}  // namespace

SensorPanel::SensorPanel(Placing& place, Frame& frame, CommandButton& closeKey, const OperatorActs& acts,
                         LiveViews* views, QWidget* over)
    : frame_(frame), pages_(contents(place, views)) {
    QWidget* const key = place.key("cmdCloseSensor", IconName::close);
    panel_ = new FoldOut(QString::fromStdString(frameTitle("fraSensor")), key, pages_, over);
    putPagesInHead(views);
    place.factory().dress(*panel_, frame);
    bind(*panel_, frame, acts);
    // The close key's own handler comes first, and hides the frame.
    closed_ = Listening(closeKey.onClick, [this] { close(); });
    frameLook_ = Listening(frame.onLook, [this] { follow(); });
    follow();
}

void SensorPanel::toggle() {
    opened_ = !panel_->isVisibleTo(panel_->parentWidget());
    follow();
}

void SensorPanel::close() {
    opened_ = false;
    follow();
}

void SensorPanel::follow() {
    panel_->setVisible(opened_ || frame_.visible());
}

Pages* SensorPanel::contents(Placing& place, LiveViews* views) {
    const QString spoken = QString::fromStdString(frameName("engineeringPages"));
    auto* const all = new Pages(QStringLiteral("engineeringPages"), spoken);
    if (views != nullptr) {
        all->add(views, pageWords(PanelPage::liveView));
        all->add(views, pageWords(PanelPage::charts));
    }
    all->add(pageOf({rangeGroup(place), thresholdGroup(place)}), pageWords(PanelPage::ranges));
    all->add(pageOf({taskGroup(place), targetGroup(place), channelGroup(place)}),
             pageWords(PanelPage::tasks));
    all->add(
        pageOf({powerLimitGroup(place), counterGroup(place), rawValueGroup(place), landmarkGroup(place)}),
        pageWords(PanelPage::power));
    return all;
}

void SensorPanel::putPagesInHead(LiveViews* views) {
    pages_->keepShortcuts(*panel_);
    panel_->putInHead(&pages_->tabs());
    if (views == nullptr) return;
    // The room below is for the views.
    QWidget* const move = views->takeMoveKey();
    panel_->putInHead(move);
    pages_->onTurned = [this, views, move](int page) {
        views->show(page == 1 ? LivePart::charts : LivePart::all);
        move->setVisible(views->isVisibleTo(pages_));
    };
}

}  // namespace quorrin
