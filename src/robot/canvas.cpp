#include "robot/canvas.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "robot/glyphs.h"

namespace quorrin {

namespace {

constexpr int kFine = 4;  // dots a pixel, each way

}  // namespace

Canvas::Canvas(int width, int height, Ink paper)
    : width_(width * kFine),
      height_(height * kFine),
      dots_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), paper) {}

void Canvas::dot(int x, int y, Ink ink) {
    dots_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)] = ink;
}

void Canvas::fill(const std::vector<Vec2>& polygon, Ink ink) {
    if (polygon.size() < 3) return;
    double low = polygon[0].y;
    double high = low;
    for (const Vec2 point : polygon) {
        low = std::min(low, point.y);
        high = std::max(high, point.y);
    }
    const int first = std::max(0, static_cast<int>(std::floor(low * kFine)));
    const int last = std::min(height_ - 1, static_cast<int>(std::ceil(high * kFine)));
    std::vector<double> crossings;
    for (int y = first; y <= last; ++y) {
        const double at = (y + 0.5) / kFine;
        crossings.clear();
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const Vec2 a = polygon[i];
            const Vec2 b = polygon[(i + 1) % polygon.size()];
            if ((a.y <= at) == (b.y <= at)) continue;
            crossings.push_back(a.x + (at - a.y) / (b.y - a.y) * (b.x - a.x));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            const int from = std::max(0, static_cast<int>(std::ceil(crossings[i] * kFine - 0.5)));
            const int to = std::min(width_ - 1, static_cast<int>(std::floor(crossings[i + 1] * kFine - 0.5)));
            for (int x = from; x <= to; ++x) dot(x, y, ink);
        }
    }
}

void Canvas::disc(Vec2 middle, double radius, Ink ink) {
    const int corners = std::clamp(static_cast<int>(radius * 4), 12, 180);
    std::vector<Vec2> polygon;
    for (int i = 0; i < corners; ++i)
        polygon.push_back(middle + unitVector(2 * kExactPi * i / corners) * radius);
    fill(polygon, ink);
}

void Canvas::line(Vec2 from, Vec2 to, double thickness, Ink ink) {
    const double half = thickness / 2;
    const Vec2 along = to - from;
    const double size = length(along);
    if (size > 0) {
        const Vec2 across = Vec2{-along.y, along.x} * (half / size);
        fill({from + across, to + across, to - across, from - across}, ink);
    }
    if (thickness < 1.5) return;  // too thin for round ends to show
    disc(from, half, ink);
    disc(to, half, ink);
}

void Canvas::outline(const std::vector<Vec2>& polygon, double thickness, Ink ink) {
    for (std::size_t i = 0; i < polygon.size(); ++i)
        line(polygon[i], polygon[(i + 1) % polygon.size()], thickness, ink);
}

double Canvas::textWidth(double height, const std::string& text) {
    return text.empty() ? 0 : (static_cast<double>(text.size()) * 6 - 1) * height / 7;
}

void Canvas::text(Vec2 middle, double height, const std::string& text, Ink ink) {
    const double unit = height / 7;
    double x = middle.x - textWidth(height, text) / 2;
    const double top = middle.y - height / 2;
    for (const char letter : text) {
        if (const GlyphRows* rows = glyphRows(letter)) {
            for (int row = 0; row < 7; ++row) {
                for (int column = 0; column < 5; ++column) {
                    if (((*rows)[static_cast<std::size_t>(row)] >> (4 - column) & 1) == 0) continue;
                    const Vec2 a{x + column * unit, top + row * unit};
                    fill({a, a + Vec2{unit, 0}, a + Vec2{unit, unit}, a + Vec2{0, unit}}, ink);
                }
            }
        }
        x += 6 * unit;
    }
}

CameraPicture Canvas::picture() const {
    CameraPicture result{width_ / kFine, height_ / kFine, {}};
    for (int y = 0; y < result.height; ++y) {
        for (int x = 0; x < result.width; ++x) {
            std::array<int, 3> sum{};
            for (int k = 0; k < kFine * kFine; ++k) {
                const auto row = static_cast<std::size_t>(y * kFine + k / kFine);
                const auto column = static_cast<std::size_t>(x * kFine + k % kFine);
                const Ink ink = dots_[row * static_cast<std::size_t>(width_) + column];
                sum[0] += ink.red;
                sum[1] += ink.green;
                sum[2] += ink.blue;
            }
            for (const int part : sum) result.pixels += static_cast<char>((part + 8) / (kFine * kFine));
        }
    }
    return result;
}

}  // namespace quorrin
