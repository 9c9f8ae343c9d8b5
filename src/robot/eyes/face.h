// A flat convex piece of something that the camera can see, with what its surface is like.
//
// Places on it are told in metres along two axes from its origin: `across` and `along` for what lies flat,
// sideways and height above the floor for what stands.
#pragma once

#include <cstdint>
#include <vector>

#include "robot/eyes/vec3.h"

namespace quorrin {

// Parts of 1.
struct Tint {
    float red = 0;
    float green = 0;
    float blue = 0;

    friend Tint operator*(Tint a, float k) { return {a.red * k, a.green * k, a.blue * k}; }
    friend Tint operator+(Tint a, Tint b) { return {a.red + b.red, a.green + b.green, a.blue + b.blue}; }
};

enum class Surface : std::uint8_t {
    plain,
    wall,
    tiles,
    ceiling,
    wood,
    doors,
    carton,
    books,
    fabric,
    leaves,
    mat
};

struct Face {
    std::vector<Vec3> corners;
    Vec3 normal;  // out of the thing
    Vec3 origin;
    Vec3 uAxis;
    Vec3 vAxis;
    Surface surface = Surface::plain;
    Tint tint;
    // Seen from behind, too.
    bool thin = false;
};

using Faces = std::vector<Face>;

// An upright rectangle over a segment of the floor plan, seen from both sides.
Face uprightFace(Vec2 from, Vec2 to, double low_m, double high_m, Surface surface, Tint tint);
// Flat at that height, seen from above, or from below.
Face flatFace(const std::vector<Vec2>& outline, double height_m, Surface surface, Tint tint,
              bool fromBelow = false);

// What stands over an outline (any direction of turning): its sides and its top.
void addPrism(Faces& into, const std::vector<Vec2>& outline, double low_m, double high_m, Surface sides,
              Surface top, Tint tint);

// A turned shape: rings at heights with radii, `flat` the ratio of its depth to its width, its wide side
// across `facing`.
struct Ring {
    double height_m;
    double radius_m;
};
void addTurned(Faces& into, Vec2 middle, Vec2 facing, double flat, const std::vector<Ring>& rings, Tint tint);

}  // namespace quorrin
