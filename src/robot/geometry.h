// Points, segments and rays of the plane. Metres and radians, x to the right, y up, angles counterclockwise.
#pragma once

#include <cmath>

namespace quorrin {

constexpr double kExactPi = 3.14159265358979323846;

struct Vec2 {
    double x = 0;
    double y = 0;

    friend Vec2 operator+(Vec2 a, Vec2 b) { return {a.x + b.x, a.y + b.y}; }
    friend Vec2 operator-(Vec2 a, Vec2 b) { return {a.x - b.x, a.y - b.y}; }
    friend Vec2 operator*(Vec2 a, double k) { return {a.x * k, a.y * k}; }
    bool operator==(const Vec2&) const = default;
};

inline double dot(Vec2 a, Vec2 b) {
    return a.x * b.x + a.y * b.y;
}
inline double cross(Vec2 a, Vec2 b) {
    return a.x * b.y - a.y * b.x;
}
inline double length(Vec2 a) {
    return std::sqrt(dot(a, a));
}
inline Vec2 unitVector(double angle) {
    return {std::cos(angle), std::sin(angle)};
}
inline Vec2 rotated(Vec2 v, double angle) {
    const Vec2 u = unitVector(angle);
    return {v.x * u.x - v.y * u.y, v.x * u.y + v.y * u.x};
}
inline double radFromDeg(double degrees) {
    return degrees * kExactPi / 180.0;
}
// Into -pi to pi, for any finite angle.
inline double wrapAngle(double angle) {
    return std::remainder(angle, 2.0 * kExactPi);
}

struct Pose {
    Vec2 at;
    double heading = 0;  // radians
};

struct Segment {
    Vec2 a;
    Vec2 b;
};

struct Circle {
    Vec2 centre;
    double radius = 0;
};

// How far along the unit vector `direction` the ray from `from` meets the thing; `limit` when it does not
// meet it before that.
double rayToSegment(Vec2 from, Vec2 direction, const Segment& segment, double limit);
double rayToCircle(Vec2 from, Vec2 direction, const Circle& circle, double limit);

double distanceToSegment(Vec2 point, const Segment& segment);

}  // namespace quorrin
