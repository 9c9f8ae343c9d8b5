// Draws faces into a picture as a camera sees them: perspective, hidden things hidden, light.
//
// Each pixel's place on a face is exact (no triangle is interpolated); the nearest face wins, whatever the
// order, and nearest first is fastest. The camera looks from the view's eye, sees 62 degrees across, and
// nothing nearer than 3 cm. Light is 0 (nearly dark) to 1.
#pragma once

#include <vector>

#include "robot/camera.h"
#include "robot/eyes/face.h"
#include "robot/eyes/view.h"

namespace quorrin {

class Raster {
  public:
    Raster(const CameraView& view, int width, int height, double light);

    void draw(const Face& face);
    // How far it is to the face's nearest corner, for drawing in order.
    double distance(const Face& face) const;

    CameraPicture takePicture() { return std::move(picture_); }

  private:
    struct Plane;
    struct Span {
        int from;
        int to;
    };
    Vec3 seen(Vec3 direction) const {
        return {dot(direction, right_), -dot(direction, up_), dot(direction, forward_)};
    }
    // The pixels of each row; false when there are none.
    bool findSpans(const Face& face);
    template <Surface kind>
    void paint(const Face& face, const Plane& plane);

    CameraPicture picture_;
    std::vector<float> nearness_;  // 1 / distance of what is drawn there
    Vec3 eye_;
    Vec3 right_;
    Vec3 up_;
    Vec3 forward_;
    double focal_px_;
    double light_;
    std::vector<Vec3> clipped_;
    std::vector<Span> spans_;
    int top_ = 0;
    int bottom_ = -1;
};

}  // namespace quorrin
