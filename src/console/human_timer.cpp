#include "console/human_timer.h"

namespace quorrin {

void bindHumanTimer(Timer& tmrHuman) {
    tmrHuman.setHandler([&tmrHuman, count = 0]() mutable {
        if (++count < 3) return;
        count = 0;
        tmrHuman.setRunning(false);
    });
}

}  // namespace quorrin
