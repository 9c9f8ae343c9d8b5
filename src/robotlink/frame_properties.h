// A frame's numbers into the link's properties. Pure; the frame's values have been checked to fit.
#pragma once

#include "robot.pb.h"
#include "robotlink/quorrin_sdk.h"

namespace quorrin {

void takeSensorFrame(LinkProperties& link, const wire::SensorFrame& frame);
void takeIrFrame(LinkProperties& link, const wire::IrFrame& frame);
void takeMotorFrame(LinkProperties& link, const wire::MotorFrame& frame);
void takePowerFrame(LinkProperties& link, const wire::PowerFrame& frame);

}  // namespace quorrin
