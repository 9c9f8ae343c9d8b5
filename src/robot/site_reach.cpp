// Where the robot can get to in a site.
#include <algorithm>
#include <vector>

#include "robot/site.h"

namespace quorrin {

namespace {

constexpr double kStep_m = 0.05;
// A little less than the robot, so that the result errs on the large side.
constexpr double kClearance_m = kRobotRadius_m - 0.5 * kStep_m;
constexpr int kReach = 200;  // cells each way from the start: 10 m, more than any site may have

}  // namespace

std::vector<Segment> fixedSegments(const Site& site) {
    std::vector<Segment> segments = site.walls;
    for (const Furniture& thing : site.furniture)
        for (std::size_t i = 0; i < thing.outline.size(); ++i)
            segments.push_back({thing.outline[i], thing.outline[(i + 1) % thing.outline.size()]});
    return segments;
}

Extent reachableExtent(const Site& site) {
    constexpr int side = 2 * kReach + 1;
    std::vector<char> blocked(static_cast<std::size_t>(side) * side, 0);
    const auto index = [](int i, int j) {
        return static_cast<std::size_t>(j + kReach) * side + static_cast<std::size_t>(i + kReach);
    };
    const auto cellOf = [](double offset) {
        return static_cast<int>(std::floor(std::clamp(offset / kStep_m, -2.0 * kReach, 2.0 * kReach)));
    };
    // Each segment blocks the cells around it.
    for (const Segment& segment : fixedSegments(site)) {
        const Vec2 a = segment.a - site.start.at;
        const Vec2 b = segment.b - site.start.at;
        const int i0 = std::max(-kReach, cellOf(std::min(a.x, b.x) - kClearance_m));
        const int i1 = std::min(kReach, cellOf(std::max(a.x, b.x) + kClearance_m) + 1);
        const int j0 = std::max(-kReach, cellOf(std::min(a.y, b.y) - kClearance_m));
        const int j1 = std::min(kReach, cellOf(std::max(a.y, b.y) + kClearance_m) + 1);
        for (int j = j0; j <= j1; ++j)
            for (int i = i0; i <= i1; ++i)
                if (distanceToSegment({i * kStep_m, j * kStep_m}, {a, b}) < kClearance_m)
                    blocked[index(i, j)] = 1;
    }

    Extent extent{site.start.at, site.start.at, true};
    if (blocked[index(0, 0)] != 0) return extent;
    std::vector<std::pair<int, int>> open{{0, 0}};
    blocked[index(0, 0)] = 1;
    while (!open.empty()) {
        const auto [i, j] = open.back();
        open.pop_back();
        const Vec2 at = site.start.at + Vec2{i * kStep_m, j * kStep_m};
        extent.low = {std::min(extent.low.x, at.x), std::min(extent.low.y, at.y)};
        extent.high = {std::max(extent.high.x, at.x), std::max(extent.high.y, at.y)};
        if (std::abs(i) == kReach || std::abs(j) == kReach) {
            extent.closed = false;
            continue;
        }
        for (const auto& [di, dj] : {std::pair{1, 0}, std::pair{-1, 0}, std::pair{0, 1}, std::pair{0, -1}}) {
            char& mark = blocked[index(i + di, j + dj)];
            if (mark != 0) continue;
            mark = 1;
            open.emplace_back(i + di, j + dj);
        }
    }
    return extent;
}

}  // namespace quorrin
