// A small drawing board without a window: filled shapes, thick lines and capitals, with smooth edges.
//
// Pixel coordinates, x to the right, y down, the picture from (0, 0) to (width, height). What lies outside is
// cut off. It draws at four times the size and averages at the end.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "robot/camera.h"
#include "robot/geometry.h"

namespace quorrin {

struct Ink {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

class Canvas {
  public:
    Canvas(int width, int height, Ink paper);

    void fill(const std::vector<Vec2>& polygon, Ink ink);
    void disc(Vec2 middle, double radius, Ink ink);
    // Round ends.
    void line(Vec2 from, Vec2 to, double thickness, Ink ink);
    // The closed outline.
    void outline(const std::vector<Vec2>& polygon, double thickness, Ink ink);
    // Letters of `height` pixels around the point; small letters are drawn as capitals, unknown ones left
    // out.
    void text(Vec2 middle, double height, const std::string& text, Ink ink);
    static double textWidth(double height, const std::string& text);

    CameraPicture picture() const;

  private:
    void dot(int x, int y, Ink ink);

    int width_;
    int height_;
    std::vector<Ink> dots_;
};

}  // namespace quorrin
