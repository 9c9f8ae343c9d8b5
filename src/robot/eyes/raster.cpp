#include "robot/eyes/raster.h"

#include <algorithm>
#include <cmath>

#include "robot/eyes/surface.h"

namespace quorrin {

namespace {

constexpr double kNearest_m = 0.03;
constexpr double kHalfView = 31.0 * kExactPi / 180.0;
constexpr double kDarkest = 0.06;  // what an unlit site's camera still sees
constexpr float kFading = 0.006f;  // with the square of the distance in metres
constexpr double kExposure = 1.45;

// How bright a face is by the way it looks: lamps are above, a window somewhere to one side.
double brightness(Vec3 normal) {
    if (normal.z < -0.9) return 0.85;  // the ceiling, lit from below by its own lamps
    return 0.74 + 0.2 * normal.z + 0.13 * (0.5 * normal.x + 0.86 * normal.y);
}

char byteOf(float part) {
    return static_cast<char>(static_cast<std::uint8_t>(std::min(255.0f, part)));
}

}  // namespace

// The face's plane in the camera's frame, as sums over the pixel's ray.
struct Raster::Plane {
    Vec3 nearness;  // 1 / depth
    Vec3 u;
    Vec3 v;
    double u0 = 0;
    double v0 = 0;
    double away_m = 0;  // of the eye from the plane
    float lit = 1;
};

Raster::Raster(const CameraView& view, int width, int height, double light)
    : picture_{width, height,
               std::string(3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height), '\0')},
      nearness_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0.0f),
      eye_(view.eye),
      focal_px_(width / 2.0 / std::tan(kHalfView)),
      light_(kDarkest + (1 - kDarkest) * light),
      spans_(static_cast<std::size_t>(height)) {
    const Vec2 yaw = unitVector(view.yaw);
    const Vec2 pitch = unitVector(view.pitch);
    right_ = {yaw.y, -yaw.x, 0};
    forward_ = {pitch.x * yaw.x, pitch.x * yaw.y, pitch.y};
    up_ = {-yaw.x * pitch.y, -yaw.y * pitch.y, pitch.x};
}

double Raster::distance(const Face& face) const {
    double nearest = 1e9;
    for (const Vec3 corner : face.corners) nearest = std::min(nearest, dot(corner - eye_, forward_));
    return nearest;
}

bool Raster::findSpans(const Face& face) {
    clipped_.clear();
    const std::size_t count = face.corners.size();
    Vec3 before = seen(face.corners[count - 1] - eye_);
    for (const Vec3 corner : face.corners) {
        const Vec3 now = seen(corner - eye_);
        if ((before.z < kNearest_m) != (now.z < kNearest_m))
            clipped_.push_back(before + (now - before) * ((kNearest_m - before.z) / (now.z - before.z)));
        if (now.z >= kNearest_m) clipped_.push_back(now);
        before = now;
    }
    if (clipped_.size() < 3) return false;

    double low = 1e12;
    double high = -1e12;
    for (Vec3& it : clipped_) {
        it.x = it.x / it.z * focal_px_ + picture_.width / 2.0;
        it.y = it.y / it.z * focal_px_ + picture_.height / 2.0;
        low = std::min(low, it.y);
        high = std::max(high, it.y);
    }
    const double last = picture_.height - 1;
    top_ = static_cast<int>(std::clamp(std::ceil(low - 0.5), 0.0, last + 1));
    bottom_ = static_cast<int>(std::clamp(std::ceil(high - 0.5) - 1, -1.0, last));
    if (top_ > bottom_) return false;
    for (int y = top_; y <= bottom_; ++y) spans_[static_cast<std::size_t>(y)] = {picture_.width, 0};

    bool any = false;
    for (std::size_t i = 0; i < clipped_.size(); ++i) {
        const Vec3 a = clipped_[i];
        const Vec3 b = clipped_[(i + 1) % clipped_.size()];
        if (a.y == b.y) continue;
        const double slope = (b.x - a.x) / (b.y - a.y);
        const int first =
            std::max(top_, static_cast<int>(std::ceil(std::max(-1.0, std::min(a.y, b.y)) - 0.5)));
        const int end =
            std::min(bottom_, static_cast<int>(std::ceil(std::min(last + 2, std::max(a.y, b.y)) - 0.5)) - 1);
        for (int y = first; y <= end; ++y) {
            const double x = a.x + (y + 0.5 - a.y) * slope;
            const int pixel =
                static_cast<int>(std::clamp(std::ceil(x - 0.5), 0.0, static_cast<double>(picture_.width)));
            Span& span = spans_[static_cast<std::size_t>(y)];
            span.from = std::min(span.from, pixel);
            span.to = std::max(span.to, pixel);
            any = any || span.to > span.from;
        }
    }
    return any;
}

template <Surface kind>
void Raster::paint(const Face& face, const Plane& plane) {
    const double step = 1 / focal_px_;
    const auto nearnessStep = static_cast<float>(plane.nearness.x * step);
    const auto uStep = static_cast<float>(plane.u.x * step);
    const auto vStep = static_cast<float>(plane.v.x * step);
    const auto u0 = static_cast<float>(plane.u0);
    const auto v0 = static_cast<float>(plane.v0);
    const auto blurOfDepth = static_cast<float>(1 / (focal_px_ * std::max(0.05, plane.away_m)));
    for (int y = top_; y <= bottom_; ++y) {
        const Span span = spans_[static_cast<std::size_t>(y)];
        if (span.from >= span.to) continue;
        const Vec3 ray{(span.from + 0.5 - picture_.width / 2.0) * step,
                       (y + 0.5 - picture_.height / 2.0) * step, 1};
        auto nearness = static_cast<float>(dot(plane.nearness, ray));
        auto u = static_cast<float>(dot(plane.u, ray));
        auto v = static_cast<float>(dot(plane.v, ray));
        std::size_t pixel = static_cast<std::size_t>(y) * static_cast<std::size_t>(picture_.width) +
                            static_cast<std::size_t>(span.from);
        for (int x = span.from; x < span.to; ++x, ++pixel) {
            if (nearness > nearness_[pixel]) {
                nearness_[pixel] = nearness;
                const float depth = 1 / nearness;
                const float blur = depth * depth * blurOfDepth;
                const Tint tint = surface::tintAt<kind>(face.tint, u * depth - u0, v * depth - v0, blur);
                const float lit = plane.lit / (1 + kFading * depth * depth);
                char* to = &picture_.pixels[3 * pixel];
                to[0] = byteOf(tint.red * lit);
                to[1] = byteOf(tint.green * lit);
                to[2] = byteOf(tint.blue * lit);
            }
            nearness += nearnessStep;
            u += uStep;
            v += vStep;
        }
    }
}

void Raster::draw(const Face& face) {
    Vec3 normal = face.normal;
    double facing = dot(normal, face.corners[0] - eye_);
    if (facing >= 0 && !face.thin) return;
    if (facing > 0) {
        normal = normal * -1.0;
        facing = -facing;
    }
    if (facing > -1e-6 || !findSpans(face)) return;
    Plane plane;
    plane.nearness = seen(normal) * (1 / facing);
    plane.u = seen(face.uAxis);
    plane.v = seen(face.vAxis);
    plane.u0 = dot(face.origin - eye_, face.uAxis);
    plane.v0 = dot(face.origin - eye_, face.vAxis);
    plane.away_m = -facing;
    plane.lit = static_cast<float>(255 * kExposure * light_ * brightness(normal));
    switch (face.surface) {
        case Surface::plain:
            return paint<Surface::plain>(face, plane);
        case Surface::wall:
            return paint<Surface::wall>(face, plane);
        case Surface::tiles:
            return paint<Surface::tiles>(face, plane);
        case Surface::ceiling:
            return paint<Surface::ceiling>(face, plane);
        case Surface::wood:
            return paint<Surface::wood>(face, plane);
        case Surface::doors:
            return paint<Surface::doors>(face, plane);
        case Surface::carton:
            return paint<Surface::carton>(face, plane);
        case Surface::books:
            return paint<Surface::books>(face, plane);
        case Surface::fabric:
            return paint<Surface::fabric>(face, plane);
        case Surface::leaves:
            return paint<Surface::leaves>(face, plane);
        case Surface::mat:
            return paint<Surface::mat>(face, plane);
    }
}

}  // namespace quorrin
