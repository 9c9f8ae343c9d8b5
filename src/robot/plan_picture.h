// A site's floor plan as a picture: walls, furniture, dock, a grid of metres, and a scale bar below.
//
// For the console's map and as the ground of the robot's window. The drawing fits the picture; x goes to the
// right and y up, as in the site.
#pragma once

#include "robot/camera.h"
#include "robot/site.h"

namespace quorrin {

// How the site's metres lie in a picture's pixels.
struct PlanFrame {
    double pixelsPerMetre = 1;
    Vec2 zero;  // the pixel of the site's (0, 0)

    Vec2 pixel(Vec2 metres) const {
        return {zero.x + metres.x * pixelsPerMetre, zero.y - metres.y * pixelsPerMetre};
    }
};

PlanFrame planFrame(const Site& site, int width, int height);

// `withBoxes` draws the movable boxes where they stand at the start.
CameraPicture drawPlan(const Site& site, int width, int height, bool withBoxes);

// The sizes that the console's map expects: the overview is the big plan divided by 4.195.
constexpr int kBigPlanWidth = 705;
constexpr int kBigPlanHeight = 650;
constexpr int kOverviewWidth = 168;
constexpr int kOverviewHeight = 155;

}  // namespace quorrin
