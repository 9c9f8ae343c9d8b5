// What the camera is shown: from where it looks, which way, and what has moved in the site.
//
// Taken at one moment and drawn later, or never. Angles are radians: yaw counterclockwise in the site's
// frame, pitch up from the horizon.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "robot/eyes/vec3.h"
#include "robot/servos.h"

namespace quorrin {

struct CameraView {
    std::int64_t timeMs = 0;
    std::uint32_t frame = 0;
    Vec3 eye;
    double yaw = 0;
    double pitch = 0;
    std::vector<std::array<Vec2, 4>> boxes;
    std::vector<Vec2> people;
};

// How high the eyes are above the floor.
constexpr double kEyeHeight_m = 1.15;

// Where the eyes look with the servos where they are, from the robot's front: x left positive, y up positive.
// Head and eyes turn one on top of the other. Both up/down axes together reach no further than 80 degrees.
Vec2 gaze(const Servos& servos);

}  // namespace quorrin
