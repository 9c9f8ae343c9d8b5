#include "robotlink/quorrin_sdk.h"

namespace quorrin {

void stopDrives(QuorrinSDK& myRobot) {
    myRobot.SuspendDrive(0);
    myRobot.SuspendDrive(1);
}

}  // namespace quorrin
