#include "desktop/forms/sensor_panel.h"

#include "console/control_words.h"
#include "desktop/binding/bind.h"
#include "desktop/forms/sensor_groups.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/flow_columns.h"

namespace quorrin {

SensorPanel::SensorPanel(Placing& place, Frame& frame, CommandButton& closeKey, const OperatorActs& acts,
                         QWidget* views, QWidget* over)
    : frame_(frame) {
    QWidget* const key = place.key("cmdCloseSensor", IconName::close);
    panel_ = new FoldOut(QString::fromStdString(frameTitle("fraSensor")), key, contents(place, views), over);
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

QWidget* SensorPanel::contents(Placing& place, QWidget* views) {
    auto* const all = new QWidget;
    auto* rows = new QVBoxLayout(all);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(currentTheme().gap);
    if (views != nullptr) {
        QVBoxLayout* const live = column({views});
        rows->addWidget(group("liveViews", live), 1);
    }
    rows->addWidget(new FlowColumns(
        {rangeGroup(place), thresholdGroup(place), targetGroup(place), taskGroup(place), counterGroup(place),
         powerLimitGroup(place), channelGroup(place), rawValueGroup(place), landmarkGroup(place)},
        currentTheme().gap));
    return all;
}

}  // namespace quorrin
