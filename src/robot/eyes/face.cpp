#include "robot/eyes/face.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr int kFacets = 14;

Vec3 crossProduct(Vec3 a, Vec3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double signedArea(const std::vector<Vec2>& outline) {
    double area = 0;
    for (std::size_t i = 0; i < outline.size(); ++i)
        area += cross(outline[i], outline[(i + 1) % outline.size()]);
    return area;
}

Vec2 unit(Vec2 v) {
    const double size = length(v);
    return size > 0 ? v * (1.0 / size) : Vec2{1, 0};
}

}  // namespace

Face uprightFace(Vec2 from, Vec2 to, double low_m, double high_m, Surface surface, Tint tint) {
    const Vec2 way = unit(to - from);
    return {{at(from, low_m), at(to, low_m), at(to, high_m), at(from, high_m)},
            {way.y, -way.x, 0},
            at(from, 0),
            {way.x, way.y, 0},
            {0, 0, 1},
            surface,
            tint,
            true};
}

Face flatFace(const std::vector<Vec2>& outline, double height_m, Surface surface, Tint tint, bool fromBelow) {
    Face face;
    for (const Vec2 corner : outline) face.corners.push_back(at(corner, height_m));
    face.normal = {0, 0, fromBelow ? -1.0 : 1.0};
    face.origin = {0, 0, height_m};
    face.uAxis = {1, 0, 0};
    face.vAxis = {0, 1, 0};
    face.surface = surface;
    face.tint = tint;
    return face;
}

void addPrism(Faces& into, const std::vector<Vec2>& outline, double low_m, double high_m, Surface sides,
              Surface top, Tint tint) {
    if (outline.size() < 3) return;
    const bool counterclockwise = signedArea(outline) > 0;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const Vec2 a = outline[i];
        const Vec2 b = outline[(i + 1) % outline.size()];
        Face side = counterclockwise ? uprightFace(a, b, low_m, high_m, sides, tint)
                                     : uprightFace(b, a, low_m, high_m, sides, tint);
        side.thin = false;
        into.push_back(std::move(side));
    }
    into.push_back(flatFace(outline, high_m, top, tint));
    // Wood, cloth and cartons are told from where the thing stands, so that it keeps them when it is pushed.
    Face& lid = into.back();
    const Vec2 way = unit(outline[1] - outline[0]);
    lid.origin = at(outline[0], high_m);
    lid.uAxis = {way.x, way.y, 0};
    lid.vAxis = {-way.y, way.x, 0};
}

void addTurned(Faces& into, Vec2 middle, Vec2 facing, double flat, const std::vector<Ring>& rings,
               Tint tint) {
    const Vec2 front = unit(facing);
    const Vec2 side{-front.y, front.x};
    const auto corner = [&](const Ring& ring, int facet) {
        const Vec2 turn = unitVector(2 * kExactPi * facet / kFacets);
        return at(middle + side * (turn.x * ring.radius_m) - front * (turn.y * ring.radius_m * flat),
                  ring.height_m);
    };
    for (std::size_t i = 0; i + 1 < rings.size(); ++i) {
        for (int facet = 0; facet < kFacets; ++facet) {
            const Vec3 a = corner(rings[i], facet);
            const Vec3 b = corner(rings[i], facet + 1);
            const Vec3 c = corner(rings[i + 1], facet + 1);
            const Vec3 d = corner(rings[i + 1], facet);
            Face face;
            face.corners = {a, b, c, d};
            Vec3 normal = crossProduct(c - a, d - b);
            const Vec3 out = (a + b + c + d) * 0.25 - at(middle, (a.z + d.z) / 2);
            if (dot(normal, out) < 0) normal = normal * -1.0;
            const double size = std::sqrt(dot(normal, normal));
            if (size < 1e-12) continue;
            face.normal = normal * (1.0 / size);
            face.origin = a;
            face.uAxis = {1, 0, 0};
            face.vAxis = {0, 0, 1};
            face.tint = tint;
            into.push_back(std::move(face));
        }
    }
}

}  // namespace quorrin
