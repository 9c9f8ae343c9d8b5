// The robot's body among walls, boxes and people: what the wheels ask for, as far as the world lets them.
//
// A disc of 0.2 m radius on two wheels. The wheels push with limited force: against a wall or a heavy box
// they stall and their current rises; on a slippery floor they spin. Boxes slide with friction, people are
// not moved. Frame and units of the site; wheel speeds are metres per second, forward positive, index 0 left.
//
// No sensors, no commands, no time of its own: the owner calls step() with a fixed step.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "robot/drives.h"
#include "robot/site.h"

namespace quorrin {

struct WheelState {
    double speed_mps = 0;    // of the rim: what the encoder sees
    double travelled_m = 0;  // of the rim, since the start, signed
    double current_A = 0;
};

class Body {
  public:
    explicit Body(const Site& site);
    ~Body();
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;

    // One step. A wheel that is `held` is blocked, whatever its motor does. `people` are where persons are at
    // the end of the step. `slip` is a small relative error of each rim (0: none).
    void step(double dt_s, const WheelTargets& targets, const std::array<bool, 2>& held,
              const std::array<double, 2>& slip, const std::vector<Vec2>& people);

    Pose pose() const;
    double forward_mps() const { return forward_; }
    double turn_radps() const { return turn_; }
    double distance_m() const { return distance_; }
    // Touches after a time without any.
    int contacts() const;
    const WheelState& wheel(std::size_t side) const { return wheels_.at(side); }

    // The boxes as they lie now: four corners each.
    std::vector<std::array<Vec2, 4>> boxes() const;
    void boxSegments(std::vector<Segment>& into) const;

    static constexpr double kPersonRadius_m = 0.2;

  private:
    struct World;
    void updatePeople(const std::vector<Vec2>& people, double dt_s);
    double gripAt(Vec2 point) const;

    std::unique_ptr<World> world_;
    std::vector<SlipperyPatch> slippery_;
    std::array<WheelState, 2> wheels_;
    double forward_ = 0;
    double turn_ = 0;
    double distance_ = 0;
};

}  // namespace quorrin
