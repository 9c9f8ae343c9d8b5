// People that walk along their paths and wait where the robot is in their way.
//
// Positions in the site's frame. Somebody who is told to come (a scenario) appears at a place, may walk to
// another, and goes when the time is over.
#pragma once

#include <optional>
#include <vector>

#include "robot/site.h"

namespace quorrin {

class People {
  public:
    explicit People(const std::vector<Walker>& walkers);

    // Somebody comes; goes by himself after `seconds`.
    void appear(Vec2 at, std::optional<Vec2> walksTo, double speed_mps, double seconds);

    void step(double dt_s, Vec2 robot);
    const std::vector<Vec2>& positions() const { return positions_; }

  private:
    struct Person {
        Walker walker;
        Vec2 at;
        std::size_t next = 0;
        double waits_s = 0;
        double stays_s = -1;  // below 0: for ever
        bool loops = true;
    };
    static void walk(Person& person, double dt_s, Vec2 robot);

    std::vector<Person> people_;
    std::vector<Vec2> positions_;
};

}  // namespace quorrin
