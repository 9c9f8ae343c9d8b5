// What the live views look at. They read it and nothing else of a station; all of it must outlive them.
#pragma once

#include <functional>

#include "navigation/speed_p2p_vfh.h"
#include "platform/clock.h"
#include "session/record/navigation_controls.h"
#include "session/record/public_values.h"
#include "session/station.h"

namespace quorrin {

struct LiveSource {
    const PublicValues& values;
    const NavigationControls& controls;
    // The station's navigator, null while there is none; asked anew for each drawing.
    std::function<const speedP2PVFH*()> navigator;
    // The session's time.
    const Clock& clock;
};

inline LiveSource liveSource(const Station& station, const Clock& clock) {
    return {station.values, station.gui, [&station] { return station.navigator(); }, clock};
}

}  // namespace quorrin
