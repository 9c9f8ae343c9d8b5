// The surroundings of a navigation task in a test: record, controls, link and clock, with the sensor geometry
// that the main form loads. Everything rests until a test says otherwise.
#pragma once

#include "navigation/math/angles.h"
#include "platform/virtual/virtual_clock.h"
#include "session/record/navigation_controls.h"
#include "session/record/public_values.h"
#include "support/fake_link.h"

namespace quorrin {

struct NavigationStation {
    NavigationStation() {
        values.irRadius = {0.18, 0.18, 0.18, 0.18, 0.12, 0.18, 0.12, 0, 0, 0};
        const double degrees[10] = {30, 15, -15, -30, -90, 0, 90, 0, 25, -25};
        for (std::size_t i = 0; i < 10; ++i) values.irAngle[i] = degrees[i] / 180.0 * 3.1415926;
        values.irAngle[5] = -1.5707963;
        values.sonarRadius = {0.195, 0.195, 0.195, 0.17, 0, 0};
        values.sonarAngle = {0.78539815, 0, -0.78539815, 3.1415926, 1.0, 1.0};
        values.stuckRatioLimit = 0.38;
        values.caEnabled = true;
    }

    VirtualClock clock;
    Form form{"frmGUI"};
    NavigationControls controls{form};
    PublicValues values;
    FakeLink link;
};

}  // namespace quorrin
