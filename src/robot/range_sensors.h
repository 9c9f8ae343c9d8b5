// What the range and presence sensors read at a place in the site.
//
// IR rangers see along one ray, sonars the nearest thing in a cone. Positions and bearings are the robot's
// (radians from its front, left positive). IR readings are converter units from 1 to 4095, such that the
// station's conversion gives back the distance from the sensor; sonar readings are whole centimetres;
// presence sensors rest at 2048 and leave it by more than 500 when somebody is near and in sight.
#pragma once

#include <array>
#include <vector>

#include "robot/geometry.h"
#include "robot/noise.h"

namespace quorrin {

// IR 0 to 6 of the ring, then the head and the display.
enum IrSensor : std::uint8_t { kIrHead = 7, kIrDisplay = 8, kIrSensors = 9 };
constexpr std::size_t kSonars = 4;

struct RangeReadings {
    std::array<int, kIrSensors> irAdc{};
    std::array<int, kSonars> sonarCm{};
    std::array<int, 2> humanAdc{};  // left, right
};

// The converter reading for a distance, without noise; 0.8 m and more read alike, as far away.
int irAdcFromRange(double metres);

class RangeSensors {
  public:
    explicit RangeSensors(std::vector<Segment> fixed) : fixed_(std::move(fixed)) {}

    // `movable` are the outlines of the boxes, `people` where persons stand. `noise` null: exact readings.
    RangeReadings read(const Pose& robot, const std::vector<Segment>& movable,
                       const std::vector<Vec2>& people, Noise* noise);

    // Distance from a sensor on the robot along its bearing, at most `limit`. Valid after read() for its
    // pose.
    double irRange_m(std::size_t sensor) const { return irRange_.at(sensor); }
    double sonarRange_m(std::size_t sensor) const { return sonarRange_.at(sensor); }

    // Where the sensors sit.
    static Pose irMount(std::size_t sensor);
    static Pose sonarMount(std::size_t sensor);

  private:
    double cast(Vec2 from, double angle, double limit, const std::vector<Segment>& segments) const;
    int humanAdc(const Pose& robot, double bearing, const std::vector<Vec2>& people, Noise* noise) const;

    std::vector<Segment> fixed_;
    std::vector<Segment> near_;     // within the sonars' reach
    std::vector<Segment> nearest_;  // within the IR rangers' reach
    std::vector<Circle> persons_;   // within the sonars' reach
    std::array<double, kIrSensors> irRange_{};
    std::array<double, kSonars> sonarRange_{};
};

}  // namespace quorrin
