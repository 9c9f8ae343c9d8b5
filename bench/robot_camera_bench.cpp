// What a picture of the simulated robot's camera costs, as processor time: the mean over a turn on the spot
// in each shipped site. The robot's step comes every 20 ms in the same thread.
#include <ctime>

#include "figure.h"
#include "robot/eyes/robot_camera.h"
#include "support/robot_room.h"

int main() {
    using namespace quorrin;
    constexpr int kPictures = 72;
    constexpr double kAim_ms = 10.0;
    for (const CameraSize size : {CameraSize{320, 240}, CameraSize{640, 480}}) {
        for (const char* name : {"office", "corridor", "clutter", "hall"}) {
            const SimulatedRobot robot(shippedSite(name), 1);
            RobotCamera camera(robot.site(), size);
            CameraView view = robot.view(0);
            camera.takePicture(view);  // makes the site's faces
            const std::clock_t begin = std::clock();
            for (int i = 0; i < kPictures; ++i) {
                view.frame += 1;
                view.yaw += 2 * kExactPi / kPictures;
                if (camera.takePicture(view).pixels.empty()) return 1;
            }
            const double ms = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC / kPictures;
            bench::printFigure("robot camera " + std::to_string(size.width) + "x" +
                                   std::to_string(size.height) + ", " + name,
                               ms, "ms a picture", kAim_ms);
        }
    }
    return 0;
}
