// Points and directions in space. Metres; x and y are the site's, z points up from the floor.
#pragma once

#include "robot/geometry.h"

namespace quorrin {

struct Vec3 {
    double x = 0;
    double y = 0;
    double z = 0;

    friend Vec3 operator+(Vec3 a, Vec3 b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    friend Vec3 operator-(Vec3 a, Vec3 b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    friend Vec3 operator*(Vec3 a, double k) { return {a.x * k, a.y * k, a.z * k}; }
};

inline double dot(Vec3 a, Vec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 at(Vec2 place, double height_m) {
    return {place.x, place.y, height_m};
}

}  // namespace quorrin
