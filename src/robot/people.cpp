#include "robot/people.h"

namespace quorrin {

namespace {
// From centre to centre: two discs of 0.2 m, and a polite arm's length between them.
constexpr double kPolite_m = 0.9;
}  // namespace

People::People(const std::vector<Walker>& walkers) {
    for (const Walker& walker : walkers) {
        people_.push_back(
            {walker, walker.path.front(), walker.path.size() > 1 ? 1u : 0u, walker.pause_s, -1, true});
        positions_.push_back(walker.path.front());
    }
}

void People::appear(Vec2 at, std::optional<Vec2> walksTo, double speed_mps, double seconds) {
    Walker walker;
    walker.path = {at, walksTo.value_or(at)};
    walker.speed_mps = speed_mps;
    walker.pause_s = 0;
    people_.push_back({walker, at, 1, 0, seconds, false});
    positions_.push_back(at);
}

void People::walk(Person& person, double dt_s, Vec2 robot) {
    if (person.waits_s > 0) {
        person.waits_s -= dt_s;
        return;
    }
    const Vec2 way = person.walker.path[person.next] - person.at;
    const double rest = length(way);
    const double step = person.walker.speed_mps * dt_s;
    if (rest <= step) {
        person.at = person.walker.path[person.next];
        const bool last = person.next + 1 == person.walker.path.size();
        if (last && !person.loops) return;
        person.next = last ? 0 : person.next + 1;
        person.waits_s = person.walker.pause_s;
        return;
    }
    const Vec2 toRobot = robot - person.at;
    if (length(toRobot) < kPolite_m && dot(toRobot, way) > 0) return;
    person.at = person.at + way * (step / rest);
}

void People::step(double dt_s, Vec2 robot) {
    for (std::size_t i = 0; i < people_.size();) {
        Person& person = people_[i];
        if (person.stays_s >= 0) {
            person.stays_s -= dt_s;
            if (person.stays_s < 0) {
                people_.erase(people_.begin() + static_cast<std::ptrdiff_t>(i));
                positions_.erase(positions_.begin() + static_cast<std::ptrdiff_t>(i));
                continue;
            }
        }
        walk(person, dt_s, robot);
        positions_[i] = person.at;
        ++i;
    }
}

}  // namespace quorrin
