// The main form's controls that the camera and sound frames use.
//
// tmrCatchPhoto is enabled at start-up without an interval: it then never fires, but being enabled it makes
// every camera frame go to the archive's picture file.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct MultimediaControls {
    MultimediaControls(Form& form, Clock& clock)
        : lblVideoCnt(form, "lblVideoCnt", "0"),
          lblVoice(form, "lblVoice"),
          tmrCatchPhoto(form, "tmrCatchPhoto", clock, 0),
          tmrImage(form, "tmrImage", clock, 500) {}

    Label lblVideoCnt;  // frames prepared for the remote client
    Label lblVoice;     // did the last buffer for the remote listener go out: "True" or "False"
    Timer tmrCatchPhoto;
    Timer tmrImage;  // watches over the chain of camera frames
};

}  // namespace quorrin
