#include "robot/canvas.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace quorrin {

namespace {

constexpr int kFine = 4;  // dots a pixel, each way

// Five columns by seven rows; each row's five bits, the leftmost highest.
struct Glyph {
    char letter;
    std::array<std::uint8_t, 7> rows;
};
constexpr std::array<Glyph, 37> kGlyphs{
    {{'A', {14, 17, 17, 31, 17, 17, 17}}, {'B', {30, 17, 17, 30, 17, 17, 30}},
     {'C', {14, 17, 16, 16, 16, 17, 14}}, {'D', {30, 17, 17, 17, 17, 17, 30}},
     {'E', {31, 16, 16, 30, 16, 16, 31}}, {'F', {31, 16, 16, 30, 16, 16, 16}},
     {'G', {14, 17, 16, 23, 17, 17, 15}}, {'H', {17, 17, 17, 31, 17, 17, 17}},
     {'I', {14, 4, 4, 4, 4, 4, 14}},      {'J', {7, 2, 2, 2, 2, 18, 12}},
     {'K', {17, 18, 20, 24, 20, 18, 17}}, {'L', {16, 16, 16, 16, 16, 16, 31}},
     {'M', {17, 27, 21, 21, 17, 17, 17}}, {'N', {17, 17, 25, 21, 19, 17, 17}},
     {'O', {14, 17, 17, 17, 17, 17, 14}}, {'P', {30, 17, 17, 30, 16, 16, 16}},
     {'Q', {14, 17, 17, 17, 21, 18, 13}}, {'R', {30, 17, 17, 30, 20, 18, 17}},
     {'S', {15, 16, 16, 14, 1, 1, 30}},   {'T', {31, 4, 4, 4, 4, 4, 4}},
     {'U', {17, 17, 17, 17, 17, 17, 14}}, {'V', {17, 17, 17, 17, 17, 10, 4}},
     {'W', {17, 17, 17, 21, 21, 21, 10}}, {'X', {17, 17, 10, 4, 10, 17, 17}},
     {'Y', {17, 17, 17, 10, 4, 4, 4}},    {'Z', {31, 1, 2, 4, 8, 16, 31}},
     {'0', {14, 17, 19, 21, 25, 17, 14}}, {'1', {4, 12, 4, 4, 4, 4, 14}},
     {'2', {14, 17, 1, 2, 4, 8, 31}},     {'3', {31, 2, 4, 2, 1, 17, 14}},
     {'4', {2, 6, 10, 18, 31, 2, 2}},     {'5', {31, 16, 30, 1, 1, 17, 14}},
     {'6', {6, 8, 16, 30, 17, 17, 14}},   {'7', {31, 1, 2, 4, 8, 8, 8}},
     {'8', {14, 17, 17, 14, 17, 17, 14}}, {'9', {14, 17, 17, 15, 1, 2, 12}},
     {'.', {0, 0, 0, 0, 0, 12, 12}}}};

const Glyph* glyphOf(char letter) {
    const char capital = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    const auto place = std::find_if(kGlyphs.begin(), kGlyphs.end(),
                                    [&](const Glyph& glyph) { return glyph.letter == capital; });
    return place == kGlyphs.end() ? nullptr : &*place;
}

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
        if (const Glyph* glyph = glyphOf(letter)) {
            for (int row = 0; row < 7; ++row) {
                for (int column = 0; column < 5; ++column) {
                    if ((glyph->rows[static_cast<std::size_t>(row)] >> (4 - column) & 1) == 0) continue;
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
