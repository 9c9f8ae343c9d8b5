#include "robot/geometry.h"

#include <algorithm>

namespace quorrin {

double rayToSegment(Vec2 from, Vec2 direction, const Segment& segment, double limit) {
    const Vec2 along = segment.b - segment.a;
    const double denominator = cross(direction, along);
    if (denominator == 0.0) return limit;
    const Vec2 offset = segment.a - from;
    const double t = cross(offset, along) / denominator;
    if (!(t >= 0.0 && t < limit)) return limit;
    const double s = cross(offset, direction) / denominator;
    return s >= 0.0 && s <= 1.0 ? t : limit;
}

double rayToCircle(Vec2 from, Vec2 direction, const Circle& circle, double limit) {
    const Vec2 offset = circle.centre - from;
    const double along = dot(offset, direction);
    const double outside = dot(offset, offset) - circle.radius * circle.radius;
    if (outside <= 0.0) return 0.0;  // from inside
    if (along <= 0.0) return limit;
    const double discriminant = along * along - outside;
    if (discriminant < 0.0) return limit;
    return std::min(limit, along - std::sqrt(discriminant));
}

double distanceToSegment(Vec2 point, const Segment& segment) {
    const Vec2 along = segment.b - segment.a;
    const double squared = dot(along, along);
    double s = squared > 0.0 ? dot(point - segment.a, along) / squared : 0.0;
    s = std::clamp(s, 0.0, 1.0);
    return length(point - (segment.a + along * s));
}

}  // namespace quorrin
