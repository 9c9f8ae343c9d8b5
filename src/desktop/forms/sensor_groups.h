// The groups of the engineering panel, each made with its controls and title.
#pragma once

#include "desktop/forms/placing.h"

namespace quorrin {

Group* rangeGroup(Placing& place);
Group* landmarkGroup(Placing& place);
Group* thresholdGroup(Placing& place);
Group* powerLimitGroup(Placing& place);
Group* taskGroup(Placing& place);
Group* targetGroup(Placing& place);
Group* counterGroup(Placing& place);
Group* rawValueGroup(Placing& place);
Group* channelGroup(Placing& place);

}  // namespace quorrin
