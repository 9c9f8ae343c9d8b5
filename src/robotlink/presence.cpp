#include "robotlink/presence.h"

#include <cstdlib>

#include "session/record/general_constants.h"

namespace quorrin {

int humanLocationFrom(bool leftShown, bool rightShown) {
    if (leftShown) return rightShown ? 3 : 2;
    return rightShown ? 1 : 4;
}

void decidePresence(SensorValues& sensors, MotionControls& controls) {
    const auto someone = [&sensors] {
        const Integer deviation = sensors.humanRaw[1] - GeneralConstants::kHumanRest;
        return std::abs(static_cast<int>(deviation)) > GeneralConstants::kHumanDeviation;
    };
    sensors.humanFlags[1] = someone();
    controls.imgHumanLeft.setVisible(sensors.humanFlags[1]);
    sensors.humanFlags[2] = someone();
    controls.imgHumanRight.setVisible(sensors.humanFlags[2]);

    sensors.humanLocation =
        humanLocationFrom(controls.imgHumanLeft.visible(), controls.imgHumanRight.visible());
    controls.txtHumanLocation.setText(std::to_string(sensors.humanLocation.value()));
}

}  // namespace quorrin
