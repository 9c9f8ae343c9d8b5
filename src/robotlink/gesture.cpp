#include "robotlink/gesture.h"

namespace quorrin {

namespace {

struct Position {
    SixValues servos;
    int durationMs;  // also the time to wait for it
};

}  // namespace

void fixedGesture(const NeutralServoValues& neutral, QuorrinSDK& myRobot, Clock& clock) {
    const Position positions[] = {
        {{3900, 3650, 3400, 3500, 3500, 4200}, 1000},
        {{3900, 3000, 2900, 3500, 3500, 4900}, 1000},
        {{3600, 3650, 3400, 3500, 3500, 3500}, 1000},
        {{3600, 4250, 3800, 2880, 4880, 4200}, 1000},
        {{3900, 3650, 2900, 3500, 3500, 4200}, 1000},
        {{neutral.cHeadUpDown, neutral.cHeadLeftRight, neutral.cMouthUpDown, 0, neutral.cEyeUpDown,
          neutral.cEyeLeftRight},
         2000},
    };
    for (const Position& position : positions) {
        myRobot.MoveServosTimed(position.servos, position.durationMs);
        clock.block(position.durationMs);
    }
}

}  // namespace quorrin
