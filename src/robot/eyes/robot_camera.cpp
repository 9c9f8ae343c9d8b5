#include "robot/eyes/robot_camera.h"

#include <algorithm>
#include <utility>

#include "robot/eyes/raster.h"
#include "robot/eyes/scenery.h"
#include "robot/glyphs.h"

namespace quorrin {

namespace {

constexpr int kLetter = 6;  // columns from letter to letter
constexpr int kLineDots = 9;

// Floor and ceiling lie behind everything that stands on them.
double drawnAt(const Raster& raster, const Face& face) {
    const bool behind = face.surface == Surface::tiles || face.surface == Surface::ceiling;
    return behind ? 1e9 : raster.distance(face);
}

void paintDot(CameraPicture& picture, int column, int row, int dot, char grey) {
    for (int y = row * dot; y < (row + 1) * dot; ++y) {
        for (int x = column * dot; x < std::min((column + 1) * dot, picture.width); ++x) {
            const int fromTop = picture.height - kLineDots * dot + y;
            if (fromTop < 0) continue;
            const std::size_t at =
                3 * (static_cast<std::size_t>(fromTop) * static_cast<std::size_t>(picture.width) +
                     static_cast<std::size_t>(x));
            picture.pixels.replace(at, 3, 3, grey);
        }
    }
}

std::string twoFigures(std::int64_t value) {
    return (value < 10 ? "0" : "") + std::to_string(value);
}

}  // namespace

std::string cameraStamp(std::int64_t timeMs, std::uint32_t frame) {
    const std::int64_t tenths = timeMs / 100;
    return std::to_string(tenths / 36000) + ":" + twoFigures(tenths / 600 % 60) + ":" +
           twoFigures(tenths / 10 % 60) + "." + std::to_string(tenths % 10) + " #" + std::to_string(frame);
}

void writeStamp(CameraPicture& picture, const std::string& text) {
    const int dot = std::max(1, picture.width / 320);
    const int columns = static_cast<int>(text.size()) * kLetter + 1;
    for (int row = 0; row < kLineDots; ++row)
        for (int column = 0; column < columns; ++column) paintDot(picture, column, row, dot, '\x10');
    for (std::size_t n = 0; n < text.size(); ++n) {
        const GlyphRows* rows = glyphRows(text[n]);
        if (rows == nullptr) continue;
        for (int row = 0; row < 7; ++row)
            for (int column = 0; column < 5; ++column)
                if (((*rows)[static_cast<std::size_t>(row)] >> (4 - column) & 1) != 0)
                    paintDot(picture, static_cast<int>(n) * kLetter + 1 + column, row + 1, dot, '\xF0');
    }
}

CameraPicture RobotCamera::takePicture(const CameraView& view) {
    if (standing_.empty()) standing_ = standingFaces(site_);
    Faces moving;
    addMovingFaces(moving, view);
    Raster raster(view, size_.width, size_.height, site_.light);

    // Nearest first: what is hidden then costs nothing but the look.
    std::vector<std::pair<double, const Face*>> order;
    order.reserve(standing_.size() + moving.size());
    for (const Faces* faces : {&std::as_const(standing_), &std::as_const(moving)})
        for (const Face& face : *faces) order.emplace_back(drawnAt(raster, face), &face);
    std::stable_sort(order.begin(), order.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (const auto& [distance, face] : order) raster.draw(*face);

    CameraPicture picture = raster.takePicture();
    writeStamp(picture, cameraStamp(view.timeMs, view.frame));
    return picture;
}

}  // namespace quorrin
