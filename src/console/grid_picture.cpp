#include "console/grid_picture.h"

#include <algorithm>
#include <cmath>

#include "navigation/heading_search.h"
#include "navigation/math/angles.h"
#include "navigation/sensor_rays.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

using GeneralConstants::kPi;
using GeneralConstants::kTwoPi;

constexpr double kSectorWidth_rad = kTwoPi / kSectors;
// The window that the histogram is made of reaches 0.65 m, so the ring begins there.
constexpr double kRingInner_m = 0.65;
constexpr double kRingShareOfSpan = 0.1;
constexpr double kRingDepth = 0.5;  // of the inner radius
constexpr double kUsualSaturation = 100;
// What is farther away than this is an error and no place.
constexpr double kFarthest_m = 1000;

bool isLength(double metres) {
    return std::isfinite(metres) && std::abs(metres) < kFarthest_m;
}

RangeRay ray(const PoseValues& pose, RayKind kind, double range, double radius, double angle,
             const RangeLimits& limits, bool feedsMap) {
    RangeRay ray;
    ray.kind = kind;
    ray.shown = isLength(range) && std::isfinite(angle) && range > radius;
    if (!ray.shown) return ray;
    ray.obstacle = feedsMap && range >= radius + limits.lower_m && !(range > radius + limits.marking_m);
    const GridPoint robot{pose.robotX, pose.robotY};
    ray.from = placeFrom(robot, pose.robotTheta + angle, radius);
    ray.to = placeFrom(robot, pose.robotTheta + angle, range);
    return ray;
}

void addRays(GridPicture& picture, const PublicValues& values) {
    for (std::size_t i = 0; i < GridPicture::kInfrareds; ++i)
        picture.rays[i] = ray(values, RayKind::infrared, values.irRange[i], values.irRadius[i],
                              values.irAngle[i], kIrLimits, true);
    for (std::size_t i = 0; i < GridPicture::kSonars; ++i)
        picture.rays[GridPicture::kInfrareds + i] =
            ray(values, RayKind::sonar, values.sonarRange[i], values.sonarRadius[i], values.sonarAngle[i],
                kSonarLimits, i < kMapSonars);
}

void addRing(GridPicture& picture, const PublicValues& values, const NavigationControls& controls,
             double span_m) {
    picture.ringInner_m = std::max(kRingInner_m, kRingShareOfSpan * span_m);
    picture.ringOuter_m = picture.ringInner_m * (1 + kRingDepth);
    // The depth stands for the density that takes all speed away.
    const double saturation = parseNumber(controls.txtTh2.text()).value_or(0);
    const double full = saturation > 0 ? saturation : kUsualSaturation;
    for (std::size_t i = 0; i < kSectors; ++i) {
        RingSector& sector = picture.ring[i];
        sector.from_rad = static_cast<double>(i) * kSectorWidth_rad - kPi;
        sector.to_rad = static_cast<double>(i + 1) * kSectorWidth_rad - kPi;
        sector.density = std::clamp(values.polarHistogram[i + 1] / full, 0.0, 1.0);
        sector.blocked = values.binaryHistogram[i + 1] != 0;
    }
    const std::optional<double> limit = parseNumber(controls.txtTh1.text());
    if (limit && *limit >= 0 && *limit <= full) picture.limit = *limit / full;
}

bool drives(const speedP2PVFH* navigator) {
    return navigator != nullptr && navigator->running() && navigator->active();
}

std::optional<GuidancePicture> guidance(const PublicValues& values, const speedP2PVFH* navigator) {
    if (!drives(navigator) || !isLength(navigator->TargetX) || !isLength(navigator->TargetY)) return {};
    const double heading = navigator->Status == "turn" ? navigator->TargetAngel : navigator->desiredHeading();
    if (!std::isfinite(heading)) return {};
    const double bearing =
        bearingBetween(values.robotX, values.robotY, navigator->TargetX, navigator->TargetY);
    return GuidancePicture{
        {navigator->TargetX, navigator->TargetY}, sectorOf(bearing), heading, navigator->toleranceNow()};
}

}  // namespace

GridPoint placeFrom(GridPoint origin, double bearing_rad, double distance_m) {
    return {origin.x_m + distance_m * std::cos(bearing_rad), origin.y_m + distance_m * std::sin(bearing_rad)};
}

GridPicture gridPicture(const PublicValues& values, const NavigationControls& controls,
                        const speedP2PVFH* navigator, const GridWindow& window) {
    GridPicture picture;
    addRing(picture, values, controls, window.span_m());
    picture.robotKnown =
        isLength(values.robotX) && isLength(values.robotY) && std::isfinite(values.robotTheta);
    if (!picture.robotKnown) return picture;
    picture.robot = {values.robotX, values.robotY};
    picture.heading_rad = values.robotTheta;
    addRays(picture, values);
    picture.guidance = guidance(values, navigator);
    return picture;
}

const char* guidanceWords(const PublicValues& values, const speedP2PVFH* navigator) {
    if (navigator == nullptr || !navigator->running()) return "The navigator is not running";
    if (!navigator->active()) return "The navigator is suspended";
    if (values.inStuck) return "The robot is stuck: the wheels are being freed";
    if (navigator->Status == "turn") return "Turning on the spot to the final heading";
    if (!values.vfhActive) return "Collision avoidance is off: straight for the target";
    if (navigator->CAStatus == "openfound") return "The goal is blocked: round the obstacle";
    if (navigator->CAStatus == "totallyopen") return "Open all round: straight for the target";
    if (navigator->CAStatus == "openwithnochange") return "Open ahead: straight for the target";
    if (navigator->CAStatus == "openwithchange") return "Keeping clear of an obstacle beside the way";
    if (navigator->CAStatus == "stuck") return "No way through: waiting";
    return "The navigator is starting";
}

}  // namespace quorrin
