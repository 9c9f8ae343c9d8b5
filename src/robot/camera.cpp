#include "robot/camera.h"

#include <cstdint>

namespace quorrin {

namespace {

void appendNumber(std::string& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

}  // namespace

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
