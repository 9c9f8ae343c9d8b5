// How a signal ends a station, for the mains: as the key that ends it; before the main form is there, as the
// login's Cancel.
#pragma once

#include "session/station.h"

namespace quorrin {

inline void endByOperator(Station& station) {
    if (station.gui.shown()) {
        station.gui.cmdExit.operatorClick();
    } else {
        station.login.cmdCancel.operatorClick();
    }
}

}  // namespace quorrin
