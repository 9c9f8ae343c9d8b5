#include "console/fold_outs.h"

namespace quorrin {

namespace {
void closeSetting(FoldOutControls& controls) {
    controls.fraSetting.setVisible(false);
    controls.cmdExpandSetting.setCaption("Open Setting");
}
}  // namespace

void bindFoldOuts(FoldOutControls& controls) {
    controls.cmdExpandSetting.onClick = [&controls] {
        if (controls.cmdExpandSetting.caption() == "Open Setting") {
            controls.cmdExpandSetting.setCaption("Close Setting");
            controls.fraSetting.setVisible(true);
        } else {
            closeSetting(controls);
        }
    };
    controls.cmdCloseSetting.onClick = [&controls] { closeSetting(controls); };
    controls.cmdCloseSensor.onClick = [&controls] { controls.fraSensor.setVisible(false); };
}

void hideFoldOuts(FoldOutControls& controls) {
    controls.fraSetting.setVisible(false);
    controls.fraSetting.moveTo(kSettingPlace.left, kSettingPlace.top);
    controls.fraSensor.setVisible(false);
    controls.fraSensor.moveTo(kSensorPlace.left, kSensorPlace.top);
}

}  // namespace quorrin
