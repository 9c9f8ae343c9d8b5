#include "robot/range_sensors.h"

#include <algorithm>
#include <cmath>

#include "robot/body.h"

namespace quorrin {

namespace {

constexpr double kIrReach_m = 1.0;     // beyond 0.8 m all readings mean "far"
constexpr double kSonarReach_m = 3.0;  // nothing comes back from further away
constexpr double kSonarBlind_m = 0.02;
constexpr double kSonarHalfCone = 12.0 * kExactPi / 180.0;
constexpr int kSonarRays = 5;
constexpr double kOutermostSensor_m = 0.195;

// volts = adc * 3 / 4028, centimetres = 21.6 / (volts - 0.17)
constexpr double kAdcPerVolt = 4028.0 / 3.0;
constexpr double kVoltCentimetres = 21.6;
constexpr double kVoltFloor = 0.17;
constexpr int kAdcLargest = 4095;

constexpr double kIrNoise = 0.015;  // of the range
constexpr double kIrNoise_adc = 8.0;
constexpr double kSonarNoise_m = 0.01;
constexpr double kHumanNoise = 25.0;

constexpr double kHumanReach_m = 2.4;
constexpr double kHumanHalfView = 65.0 * kExactPi / 180.0;
constexpr double kHumanMount = 35.0 * kExactPi / 180.0;
constexpr double kHumanStrength = 1400.0;
constexpr int kHumanRest = 2048;

struct Mount {
    double radius;
    double degrees;
};
constexpr std::array<Mount, kIrSensors> kIrMounts{{{0.18, 30},
                                                   {0.18, 15},
                                                   {0.18, -15},
                                                   {0.18, -30},
                                                   {0.12, -90},
                                                   {0.18, -90},
                                                   {0.12, 90},
                                                   {0.0, 0},
                                                   {0.18, 0}}};
constexpr std::array<Mount, kSonars> kSonarMounts{{{0.195, 45}, {0.195, 0}, {0.195, -45}, {0.17, 180}}};

Pose mounted(const Mount& mount) {
    const double bearing = radFromDeg(mount.degrees);
    return {unitVector(bearing) * mount.radius, bearing};
}

template <std::size_t count>
std::array<Pose, count> mountedAll(const std::array<Mount, count>& mounts) {
    std::array<Pose, count> result{};
    for (std::size_t i = 0; i < count; ++i) result[i] = mounted(mounts[i]);
    return result;
}

}  // namespace

int irAdcFromRange(double metres) {
    const double centimetres = std::clamp(metres, 0.01, kIrReach_m) * 100.0;
    const double adc = (kVoltCentimetres / centimetres + kVoltFloor) * kAdcPerVolt;
    return static_cast<int>(std::clamp(std::nearbyint(adc), 1.0, static_cast<double>(kAdcLargest)));
}

Pose RangeSensors::irMount(std::size_t sensor) {
    static const auto mounts = mountedAll(kIrMounts);
    return mounts.at(sensor);
}

Pose RangeSensors::sonarMount(std::size_t sensor) {
    static const auto mounts = mountedAll(kSonarMounts);
    return mounts.at(sensor);
}

double RangeSensors::cast(Vec2 from, double angle, double limit, const std::vector<Segment>& segments) const {
    const Vec2 direction = unitVector(angle);
    double range = limit;
    for (const Segment& segment : segments) range = rayToSegment(from, direction, segment, range);
    for (const Circle& person : persons_) range = rayToCircle(from, direction, person, range);
    return range;
}

int RangeSensors::humanAdc(const Pose& robot, double bearing, const std::vector<Vec2>& people,
                           Noise* noise) const {
    double strongest = 0;
    for (const Vec2 person : people) {
        const Vec2 way = person - robot.at;
        const double distance = length(way);
        if (distance >= kHumanReach_m || distance <= Body::kPersonRadius_m) continue;
        const double direction = std::atan2(way.y, way.x);
        if (std::abs(wrapAngle(direction - robot.heading - bearing)) > kHumanHalfView) continue;
        // In sight: nothing that stands on the floor lies between.
        double free = distance - Body::kPersonRadius_m;
        const double wanted = free;
        for (const Segment& segment : near_)
            free = rayToSegment(robot.at, way * (1.0 / distance), segment, free);
        if (free < wanted) continue;
        strongest = std::max(strongest, 1.0 - distance / kHumanReach_m);
    }
    const double reading =
        kHumanRest + kHumanStrength * strongest + (noise != nullptr ? kHumanNoise * noise->gauss() : 0);
    return static_cast<int>(std::clamp(std::nearbyint(reading), 0.0, static_cast<double>(kAdcLargest)));
}

RangeReadings RangeSensors::read(const Pose& robot, const std::vector<Segment>& movable,
                                 const std::vector<Vec2>& people, Noise* noise) {
    near_.clear();
    nearest_.clear();
    persons_.clear();
    const auto offer = [&](const Segment& segment) {
        const double distance = distanceToSegment(robot.at, segment);
        if (distance > kSonarReach_m + kOutermostSensor_m) return;
        near_.push_back(segment);
        if (distance <= kIrReach_m + kOutermostSensor_m) nearest_.push_back(segment);
    };
    for (const Segment& segment : fixed_) offer(segment);
    for (const Segment& segment : movable) offer(segment);
    for (const Vec2 person : people)
        if (length(person - robot.at) < kSonarReach_m + 2 * Body::kPersonRadius_m)
            persons_.push_back({person, Body::kPersonRadius_m});

    RangeReadings readings;
    for (std::size_t i = 0; i < kIrSensors; ++i) {
        const Pose mount = irMount(i);
        irRange_[i] = cast(robot.at + rotated(mount.at, robot.heading), robot.heading + mount.heading,
                           kIrReach_m, nearest_);
        double range = irRange_[i];
        double units = 0;
        if (noise != nullptr) {
            range *= 1.0 + kIrNoise * noise->gauss();
            units = kIrNoise_adc * noise->gauss();
        }
        const double adc = irAdcFromRange(range) + std::nearbyint(units);
        readings.irAdc[i] = static_cast<int>(std::clamp(adc, 1.0, static_cast<double>(kAdcLargest)));
    }
    for (std::size_t i = 0; i < kSonars; ++i) {
        const Pose mount = sonarMount(i);
        const Vec2 from = robot.at + rotated(mount.at, robot.heading);
        double range = kSonarReach_m;
        for (int k = 0; k < kSonarRays; ++k) {
            const double across = (2.0 * k / (kSonarRays - 1) - 1.0) * kSonarHalfCone;
            range = cast(from, robot.heading + mount.heading + across, range, near_);
        }
        sonarRange_[i] = range;
        if (noise != nullptr && range < kSonarReach_m) range += kSonarNoise_m * noise->gauss();
        range = std::clamp(range, kSonarBlind_m, kSonarReach_m);
        readings.sonarCm[i] = static_cast<int>(std::nearbyint(range * 100.0));
    }
    readings.humanAdc = {humanAdc(robot, kHumanMount, people, noise),
                         humanAdc(robot, -kHumanMount, people, noise)};
    return readings;
}

}  // namespace quorrin
