// What there is to draw over the certainty grid: robot, rays, the ring of the polar histogram, goal sector,
// chosen heading, target.
//
// All places are metres in the world frame (x ahead of the start pose, y to its left), all angles radians in
// it, counter-clockwise from x; sectors too are the world's and do not turn with the robot. Made anew from
// the record for each drawing, without the heap; only reads. Nothing that is no number gets drawn.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "console/grid_window.h"
#include "navigation/speed_p2p_vfh.h"
#include "session/record/navigation_controls.h"
#include "session/record/public_values.h"

namespace quorrin {

enum class RayKind : std::uint8_t { infrared, sonar };

// One sensor's reading, from the sensor to what it saw.
struct RangeRay {
    RayKind kind = RayKind::infrared;
    bool shown = false;     // it has measured something in front of itself
    bool obstacle = false;  // near enough to mark the grid; else the ray only clears
    GridPoint from;
    GridPoint to;
};

// One sector of the ring round the robot.
struct RingSector {
    double from_rad = 0;
    double to_rad = 0;
    double density = 0;  // share of the ring's depth, 0 to 1
    bool blocked = false;
};

// What the navigator wants; only while it drives.
struct GuidancePicture {
    GridPoint target;
    int goalSector = 0;  // 1 to 36, the bearing to the target
    double heading_rad = 0;
    double toleranceNow_m = 0;
};

struct GridPicture {
    static constexpr double kRobotRadius_m = 0.2;
    static constexpr std::size_t kInfrareds = 10;
    static constexpr std::size_t kSonars = 4;

    bool robotKnown = false;  // the pose is a place
    GridPoint robot;
    double heading_rad = 0;
    std::array<RangeRay, kInfrareds + kSonars> rays;  // infrareds first
    std::array<RingSector, kSectors> ring;            // sector n at n - 1
    double ringInner_m = 0;
    double ringOuter_m = 0;
    // Above this share of the depth a sector is blocked; nothing while the box holds no usable number.
    std::optional<double> limit;
    std::optional<GuidancePicture> guidance;
};

// `navigator` may be null. The ring grows with the window, so that it can be read in the whole grid too.
GridPicture gridPicture(const PublicValues& values, const NavigationControls& controls,
                        const speedP2PVFH* navigator, const GridWindow& window);

// A place so far from another in a direction.
GridPoint placeFrom(GridPoint origin, double bearing_rad, double distance_m);

// What the navigator is about, as a sentence.
const char* guidanceWords(const PublicValues& values, const speedP2PVFH* navigator);

}  // namespace quorrin
