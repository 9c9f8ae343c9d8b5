// frmZoomCamera, the larger view of the camera. Controls only; see zoom_camera.h for what it does.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct frmZoomCamera : Form {
    explicit frmZoomCamera(Clock& clock)
        : Form("frmZoomCamera"),
          Image1(*this, "Image1"),
          cmdClose(*this, "cmdClose", "Close"),
          tmrShowImage(*this, "tmrShowImage", clock, 100) {}

    Picture Image1;  // stretches
    CommandButton cmdClose;
    Timer tmrShowImage;
};

}  // namespace quorrin
