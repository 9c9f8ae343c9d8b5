// Pictures from files in the place of a camera: one file again and again, or a folder's pictures one after
// another by name and then from the first again.
//
// Each is brought into the camera's size as a whole, with black beside it where its shape is another; one
// that has that size is given byte by byte. Nothing is written into them. A folder is listed once; a picture
// of it that cannot be read is told on the log and left out from then on. Errors: SiteError from the
// constructor when there is nothing to show. How a picture file is read is its owner's business. The files
// must outlive it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "robot/camera.h"
#include "robot/eyes/robot_camera.h"

namespace quorrin {

// Width 0, and why in `fault`, when it cannot be read.
using PictureReader = std::function<CameraPicture(const std::string& path, std::string& fault)>;

class StandInPictures {
  public:
    StandInPictures(Files& files, PictureReader read, const std::string& fileOrFolder, CameraSize size,
                    std::function<void(const std::string&)> log);

    const CameraPicture& next();

  private:
    // Reads the picture at `at_`, leaves out what cannot be read; false when none is left.
    bool load();

    PictureReader read_;
    CameraSize size_;
    std::function<void(const std::string&)> log_;
    std::vector<std::string> paths_;
    std::size_t at_ = 0;
    CameraPicture shown_;
    bool fresh_ = false;  // `shown_` has not been given yet
};

// The whole picture in that size, its shape kept, in the middle of black.
CameraPicture fittedPicture(const CameraPicture& picture, CameraSize size);

}  // namespace quorrin
