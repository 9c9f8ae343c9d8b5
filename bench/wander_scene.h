// A busy wander as fixed input for tick measurements: poses, ranges and targets of a robot that finds its way
// through a cluttered room, one sample a tick.
//
// The samples are made once, by closing the loop over the real tasks with ideal wheels and ranges; replaying
// them into fresh tasks gives the same grid and the same commands every time.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "navigation/math/angles.h"
#include "navigation/sensor_map_builder.h"
#include "navigation/teleoperation.h"
#include "support/navigation_station.h"
#include "support/silent_link.h"

namespace quorrin::bench {

struct WanderSample {
    PoseValues pose;
    std::array<double, 10> irRange;
    std::array<double, 6> sonarRange;
    double targetX;
    double targetY;
};

// What the ticks run in.
struct WanderTasks : NavigationStation {
    WanderTasks() {
        values.vfhActive = true;
        navigator.nonstop = true;
        navigator.TargetForwardspeed = 0.195;
        navigator.maxTurnspeed = degToRad(45);
        navigator.lowerTolerance = 0.12;
        map.run();
        navigator.run();
    }
    void load(const WanderSample& sample) {
        static_cast<PoseValues&>(values) = sample.pose;
        values.irRange = sample.irRange;
        values.sonarRange = sample.sonarRange;
        navigator.TargetX = sample.targetX;
        navigator.TargetY = sample.targetY;
    }
    SilentLink silent;
    SensorMapBuilder map{clock, values, values, values, controls};
    speedP2PVFH navigator{clock, values, controls, silent};
};

// A room of 5 m by 4 m round the origin with pillars in it.
class Room {
  public:
    double distance(double x, double y, double bearing) const {
        const double dx = std::cos(bearing);
        const double dy = std::sin(bearing);
        double best = std::min(wall(x, dx, 2.5), wall(y, dy, 2.0));
        for (const Pillar& pillar : pillars_) {
            const double along = (pillar.x - x) * dx + (pillar.y - y) * dy;
            const double across = (pillar.x - x) * dy - (pillar.y - y) * dx;
            const double half2 = pillar.radius * pillar.radius - across * across;
            if (half2 > 0 && along > 0) best = std::min(best, along - std::sqrt(half2));
        }
        return best;
    }

  private:
    struct Pillar {
        double x, y, radius;
    };
    static double wall(double place, double direction, double half) {
        if (direction == 0) return 1e3;
        return ((direction > 0 ? half : -half) - place) / direction;
    }
    std::vector<Pillar> pillars_{{1.2, 0.7, 0.2}, {-1.1, 0.9, 0.25}, {0.9, -1.0, 0.2}, {-1.3, -0.8, 0.2}};
};

inline std::vector<WanderSample> makeWander(std::size_t ticks) {
    const Room room;
    WanderTasks tasks;
    std::vector<WanderSample> samples;
    PoseValues pose;
    for (std::size_t tick = 0; tick < ticks; ++tick) {
        WanderSample sample{pose, {}, {}, 0, 0};
        const auto look = [&](double angle, double farthest) {
            return std::min(room.distance(pose.robotX, pose.robotY, pose.robotTheta + angle), farthest);
        };
        for (std::size_t i = 0; i < 10; ++i) sample.irRange[i] = look(tasks.values.irAngle[i], 0.81);
        for (std::size_t i = 0; i < 4; ++i) sample.sonarRange[i] = look(tasks.values.sonarAngle[i], 2.55);
        sample.targetX = pose.robotX + std::cos(pose.robotTheta);
        sample.targetY = pose.robotY + std::sin(pose.robotTheta);
        samples.push_back(sample);

        tasks.load(sample);
        tasks.map.RunTimer_Timer(100);
        tasks.navigator.RunTimer_Timer(100);
        pose.robotTheta += tasks.navigator.turnSpeed() * 0.1;
        // A robot that stands before a corner turns on its heel, as the operator would make it do.
        if (tasks.navigator.forwardSpeed() <= 0) pose.robotTheta += 0.05;
        wrapPi(pose.robotTheta);
        pose.robotX += std::cos(pose.robotTheta) * tasks.navigator.forwardSpeed() * 0.1;
        pose.robotY += std::sin(pose.robotTheta) * tasks.navigator.forwardSpeed() * 0.1;
    }
    return samples;
}

}  // namespace quorrin::bench
