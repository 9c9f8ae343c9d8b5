// Six servos that take their time. Units as commanded, 0 to 4900; out-of-range goals are brought to the
// limit.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

namespace quorrin {

class Servos {
  public:
    static constexpr double kLowest = 0;
    static constexpr double kHighest = 4900;
    static constexpr double kFastest = 6000;  // units a second
    static constexpr int kLeaveAlone = -32768;

    void move(std::size_t servo, int goal, int duration_ms) {
        if (goal == kLeaveAlone) return;
        Servo& it = servos_.at(servo);
        it.goal = std::clamp(static_cast<double>(goal), kLowest, kHighest);
        const double way = std::abs(it.goal - it.at);
        it.speed = duration_ms > 0 ? std::min(kFastest, way * 1000.0 / duration_ms) : kFastest;
    }

    void step(double dt_s) {
        for (Servo& it : servos_) {
            const double most = it.speed * dt_s;
            it.at += std::clamp(it.goal - it.at, -most, most);
        }
    }

    int position(std::size_t servo) const { return static_cast<int>(std::nearbyint(servos_.at(servo).at)); }

  private:
    struct Servo {
        double at = 3500;
        double goal = 3500;
        double speed = kFastest;
    };
    std::array<Servo, 6> servos_;
};

}  // namespace quorrin
