// The main form's camera view, its quality slider and the keys of the frame chain.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct CameraControls {
    explicit CameraControls(Form& form)
        : imgCamera(form, "imgCamera"),
          picTest(form, "picTest"),
          sldImageQuality(form, "sldImageQuality", 1, 100, 75),
          lblImageQuality(form, "lblImageQuality"),
          Label8(form, "Label8"),
          Label9(form, "Label9"),
          cmdTakePhoto(form, "cmdTakePhoto", "Take Photo"),
          cmdZoomCamera(form, "cmdZoomCamera") {
        sldImageQuality.largeChange = 5;
        picTest.setVisible(false);
    }

    Picture imgCamera;
    Picture picTest;         // only carries a frame into a bitmap
    Slider sldImageQuality;  // per cent
    Label lblImageQuality;
    Label Label8;
    Label Label9;
    CommandButton cmdTakePhoto;
    CommandButton cmdZoomCamera;
};

}  // namespace quorrin
