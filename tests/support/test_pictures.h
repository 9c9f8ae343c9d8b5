// Pictures for tests, made by sums: four coloured corners to tell which side is up, and a scene with edges,
// slopes and a little noise as a camera has it.
#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>

#include "imaging/bitmap.h"

namespace quorrin {

struct PixelColour {
    int red = 0;
    int green = 0;
    int blue = 0;
    bool operator==(const PixelColour&) const = default;
};

inline void setPixel(Bitmap& bitmap, std::int32_t x, std::int32_t y, const PixelColour& colour) {
    std::uint8_t* const at = bitmap.row(y) + x * 3;
    at[0] = static_cast<std::uint8_t>(colour.blue);
    at[1] = static_cast<std::uint8_t>(colour.green);
    at[2] = static_cast<std::uint8_t>(colour.red);
}

inline PixelColour pixelOf(const Bitmap& bitmap, std::int32_t x, std::int32_t y) {
    const std::uint8_t* const at = bitmap.row(y) + x * 3;
    return {at[2], at[1], at[0]};
}

constexpr PixelColour kUpperLeft = {255, 0, 0};
constexpr PixelColour kUpperRight = {0, 255, 0};
constexpr PixelColour kLowerLeft = {0, 0, 255};
constexpr PixelColour kLowerRight = {255, 255, 0};

// A colour in each quarter.
inline std::unique_ptr<Bitmap> cornersPicture(std::int32_t width, std::int32_t height) {
    auto bitmap = Bitmap::create(width, height);
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const bool left = x < width / 2;
            setPixel(*bitmap, x, y,
                     y < height / 2 ? (left ? kUpperLeft : kUpperRight) : (left ? kLowerLeft : kLowerRight));
        }
    }
    return bitmap;
}

inline std::unique_ptr<Bitmap> scenePicture(std::int32_t width, std::int32_t height) {
    auto bitmap = Bitmap::create(width, height);
    std::mt19937 random(7);
    const auto noisy = [&random](std::int32_t value) {
        const int noise = static_cast<int>(random() % 9) - 4;
        return std::min(255, std::max(0, value + noise));
    };
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t slope = 200 * y / height;
            const bool door = x * 8 / width == 5 && y * 4 / height >= 1;
            const bool plate = (x / 16 + y / 16) % 2 == 0 && y * 3 / height == 2;
            const std::int32_t base = door ? 60 : plate ? 150 : 40 + slope;
            setPixel(*bitmap, x, y,
                     {noisy(base + 20 * x / width), noisy(base), noisy(door ? 20 : base - 15)});
        }
    }
    return bitmap;
}

}  // namespace quorrin
