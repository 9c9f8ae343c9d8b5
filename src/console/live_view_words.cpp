#include "console/live_view_words.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "session/record/general_constants.h"

namespace quorrin {

const std::array<LegendEntry, 10>& gridLegend() {
    static const std::array<LegendEntry, 10> entries{{
        {LegendMark::obstacle, "Obstacle, the stronger the surer"},
        {LegendMark::robot, "Robot, its nose ahead"},
        {LegendMark::infraredRay, "Infrared; dot: obstacle"},
        {LegendMark::sonarRay, "Sonar; ring: obstacle"},
        {LegendMark::blockedSector, "Sector blocked"},
        {LegendMark::freeSector, "Sector free"},
        {LegendMark::densityLimit, "Density that blocks"},
        {LegendMark::goalSector, "Sector of the goal"},
        {LegendMark::heading, "Chosen heading"},
        {LegendMark::target, "Target"},
    }};
    return entries;
}

const std::array<DeedWords, 4>& gridDeeds() {
    static const std::array<DeedWords, 4> deeds{{
        {GridDeed::follow, "Follow the robot", "F"},
        {GridDeed::showAll, "Whole grid", "Home"},
        {GridDeed::nearer, "Nearer", "+"},
        {GridDeed::farther, "Farther", "-"},
    }};
    return deeds;
}

const LiveViewWords& liveViewWords() {
    static const LiveViewWords words{
        "Live views",
        "Certainty grid",
        "Drag to move, turn the wheel to zoom; F follows the robot, Home shows the whole grid",
        "Own window",
        "Shows the live views in a window of their own",
        "Ctrl+L",
        "Bring back",
        "The live views are in a window of their own.",
        "1 m",
        "now",
        "60 s ago",
    };
    return words;
}

std::string gridSpoken(const GridPicture& picture, const char* guidance) {
    if (!picture.robotKnown) return "The robot's place is not known";
    const auto blocked = std::count_if(picture.ring.begin(), picture.ring.end(),
                                       [](const RingSector& sector) { return sector.blocked; });
    const double degrees = picture.heading_rad / GeneralConstants::kPi * 180;
    return "Robot at " + formatFixed(picture.robot.x_m, 2) + " m, " + formatFixed(picture.robot.y_m, 2) +
           " m, heading " + formatFixed(degrees, 0) + " degrees; " + std::to_string(blocked) + " of " +
           std::to_string(kSectors) + " sectors blocked. " + guidance;
}

}  // namespace quorrin
