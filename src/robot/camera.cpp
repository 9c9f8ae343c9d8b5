#include "robot/camera.h"

#include <algorithm>
#include <array>

namespace quorrin {

namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 240;
constexpr int kBarTop = 200;
constexpr int kDot = 6;  // pixels a side of one dot of a figure

struct Rgb {
    int red;
    int green;
    int blue;
};

constexpr std::array<Rgb, 8> kBars{{{235, 235, 235},
                                    {235, 235, 16},
                                    {16, 235, 235},
                                    {16, 235, 16},
                                    {235, 16, 235},
                                    {235, 16, 16},
                                    {16, 16, 235},
                                    {16, 16, 16}}};

// 3 x 5 dots a figure, rows from the top, three bits each.
constexpr std::array<std::array<int, 5>, 10> kFigures{{{7, 5, 5, 5, 7},
                                                       {2, 6, 2, 2, 7},
                                                       {7, 1, 7, 4, 7},
                                                       {7, 1, 7, 1, 7},
                                                       {5, 5, 7, 1, 1},
                                                       {7, 4, 7, 1, 7},
                                                       {7, 4, 7, 5, 7},
                                                       {7, 1, 1, 2, 2},
                                                       {7, 5, 7, 5, 7},
                                                       {7, 5, 7, 1, 7}}};

void setPixel(CameraPicture& picture, int x, int y, Rgb colour) {
    const std::size_t at = 3 * (static_cast<std::size_t>(y) * kWidth + static_cast<std::size_t>(x));
    picture.pixels[at] = static_cast<char>(colour.red);
    picture.pixels[at + 1] = static_cast<char>(colour.green);
    picture.pixels[at + 2] = static_cast<char>(colour.blue);
}

void fill(CameraPicture& picture, int left, int top, int width, int height, Rgb colour) {
    for (int y = top; y < std::min(top + height, kHeight); ++y)
        for (int x = left; x < std::min(left + width, kWidth); ++x) setPixel(picture, x, y, colour);
}

void appendNumber(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

}  // namespace

CameraPicture takePicture(std::int64_t timeMs, double light) {
    CameraPicture picture{kWidth, kHeight, std::string(3 * kWidth * kHeight, '\0')};
    const auto lit = [light](int value) { return static_cast<int>(value * (0.1 + 0.9 * light)); };
    constexpr int barWidth = kWidth / static_cast<int>(kBars.size());
    for (std::size_t i = 0; i < kBars.size(); ++i) {
        const Rgb bar = kBars[i];
        fill(picture, static_cast<int>(i) * barWidth, 0, barWidth, kBarTop,
             {lit(bar.red), lit(bar.green), lit(bar.blue)});
    }
    const int x = static_cast<int>(timeMs % 1000 * (kWidth - 10) / 1000);
    fill(picture, x, kBarTop, 10, kHeight - kBarTop, {255, 255, 255});

    const std::string seconds = std::to_string(timeMs / 1000);
    fill(picture, 10, 10, static_cast<int>(seconds.size()) * 4 * kDot + kDot, 7 * kDot, {0, 0, 0});
    for (std::size_t n = 0; n < seconds.size() && n < 10; ++n) {
        const auto& figure = kFigures[static_cast<std::size_t>(seconds[n] - '0')];
        for (int row = 0; row < 5; ++row)
            for (int column = 0; column < 3; ++column)
                if ((figure[static_cast<std::size_t>(row)] >> (2 - column) & 1) != 0)
                    fill(picture, 10 + kDot + (static_cast<int>(n) * 4 + column) * kDot,
                         10 + kDot + row * kDot, kDot, kDot, {255, 255, 255});
    }
    return picture;
}

std::string bitmapFile(const CameraPicture& picture) {
    const std::size_t row = static_cast<std::size_t>(picture.width) * 3;
    const std::size_t stride = (row + 3) / 4 * 4;
    const std::size_t size = stride * static_cast<std::size_t>(picture.height);
    std::string bytes = "BM";
    appendNumber(bytes, static_cast<std::uint32_t>(54 + size), 4);
    appendNumber(bytes, 0, 4);
    appendNumber(bytes, 54, 4);
    appendNumber(bytes, 40, 4);
    appendNumber(bytes, static_cast<std::uint32_t>(picture.width), 4);
    appendNumber(bytes, static_cast<std::uint32_t>(picture.height), 4);
    appendNumber(bytes, 1, 2);
    appendNumber(bytes, 24, 2);
    appendNumber(bytes, 0, 4);
    appendNumber(bytes, static_cast<std::uint32_t>(size), 4);
    appendNumber(bytes, 2835, 4);  // 72 dots an inch
    appendNumber(bytes, 2835, 4);
    appendNumber(bytes, 0, 4);
    appendNumber(bytes, 0, 4);
    bytes.reserve(54 + size);
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::size_t at = static_cast<std::size_t>(y) * row + static_cast<std::size_t>(x) * 3;
            bytes += picture.pixels[at + 2];
            bytes += picture.pixels[at + 1];
            bytes += picture.pixels[at];
        }
        bytes.append(stride - row, '\0');
    }
    return bytes;
}

}  // namespace quorrin
