// The simulated robot's camera: draws what a view shows of a site, with time and frame number written in.
//
// The same site, view and size give the same picture, to the byte. It has no time and no rate of its own: who
// asks decides when. The site's faces are made at the first picture.
#pragma once

#include <string>

#include "robot/camera.h"
#include "robot/eyes/face.h"
#include "robot/eyes/view.h"
#include "robot/site.h"

namespace quorrin {

struct CameraSize {
    int width = 320;
    int height = 240;

    bool operator==(const CameraSize&) const = default;
};

class RobotCamera {
  public:
    // The site must outlive it.
    explicit RobotCamera(const Site& site, CameraSize size = {}) : site_(site), size_(size) {}

    CameraPicture takePicture(const CameraView& view);
    CameraSize size() const { return size_; }

  private:
    const Site& site_;
    CameraSize size_;
    Faces standing_;
};

// "0:12:34.5 #678": the robot's time in hours, minutes and tenths of seconds, and the frame's number.
std::string cameraStamp(std::int64_t timeMs, std::uint32_t frame);
// Light letters on a dark strip in the lower left corner, 7 dots high with one around; a dot is a pixel for
// each 320 of the picture's width.
void writeStamp(CameraPicture& picture, const std::string& text);

}  // namespace quorrin
