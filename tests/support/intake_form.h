// A main form that has only the controls which the robot's frames write.
#pragma once

#include "platform/virtual/virtual_clock.h"
#include "session/record/head_controls.h"
#include "session/record/lamp_controls.h"
#include "session/record/motion_controls.h"
#include "session/record/multimedia_controls.h"
#include "session/record/power_controls.h"

namespace quorrin {

struct IntakeForm : Form, MotionControls, PowerControls, LampControls, HeadControls, MultimediaControls {
    explicit IntakeForm(Clock& clock)
        : Form("frmGUI"),
          MotionControls(static_cast<Form&>(*this)),
          PowerControls(static_cast<Form&>(*this), clock),
          LampControls(static_cast<Form&>(*this)),
          HeadControls(static_cast<Form&>(*this), clock),
          MultimediaControls(static_cast<Form&>(*this), clock) {}

    Colour lamp(int element) const { return shpBatteryStatus(element).fill(); }
};

}  // namespace quorrin
