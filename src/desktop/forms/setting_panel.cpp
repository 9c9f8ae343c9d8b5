#include "desktop/forms/setting_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "console/control_words.h"
#include "desktop/binding/bind.h"
#include "desktop/forms/setting_groups.h"
#include "desktop/theme/theme.h"

namespace quorrin {

SettingPanel::SettingPanel(Placing& place, Frame& frame, const OperatorActs& acts, QWidget* over)
    : panel_(new FoldOut(QString::fromStdString(frameTitle("fraSetting")),
                         place.key("cmdCloseSetting", IconName::close), contents(place), over)) {
    place.factory().dress(*panel_, frame);
    bind(*panel_, frame, acts);
}

QWidget* SettingPanel::contents(Placing& place) {
    auto* const all = new QWidget;
    auto* columns = new QHBoxLayout(all);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(currentTheme().gap);
    QVBoxLayout* const first = column({batteryGroup(place, lamps_), soundGroup(place)});
    first->addStretch(1);
    QVBoxLayout* const second = column({reviewGroup(place), captureGroup(place)});
    second->setStretch(0, 1);
    QVBoxLayout* const third = column({sendingGroup(place)});
    third->addStretch(1);
    QVBoxLayout* const fourth = column({receivedGroup(place), imageQualityGroup(place)});
    fourth->addStretch(1);
    columns->addLayout(first, 2);
    columns->addLayout(second, 3);
    columns->addLayout(third, 2);
    columns->addLayout(fourth, 2);
    return all;
}

}  // namespace quorrin
