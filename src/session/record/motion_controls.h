// The main form's controls that the motion frames write.
//
// The two front boxes are read-outs of different things: the left one shows a raw reading, the right one a
// range in metres. A change of txtHumanLocation counts towards the status sending; that handler is set by
// the composition.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct MotionControls {
    explicit MotionControls(Form& form)
        : lblSensorCnt(form, "lblSensorCnt", "0"),
          txtFrontIRL(form, "txtFrontIRL"),
          txtFrontIRR(form, "txtFrontIRR"),
          lblHuman(form, "lblHuman"),
          imgHumanLeft(form, "imgHumanLeft"),
          imgHumanRight(form, "imgHumanRight"),
          txtHumanLocation(form, "txtHumanLocation") {
        // Nobody has been seen before the first frame.
        imgHumanLeft.setVisible(false);
        imgHumanRight.setVisible(false);
    }

    Label lblSensorCnt;  // SensorFrames received, starting anew above 32765
    TextBox txtFrontIRL;
    TextBox txtFrontIRR;
    Label lblHuman;  // raw sample of the first presence sensor
    Picture imgHumanLeft;
    Picture imgHumanRight;
    TextBox txtHumanLocation;  // 1 to 4, empty before the first frame
};

}  // namespace quorrin
