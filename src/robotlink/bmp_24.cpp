#include "robotlink/bmp_24.h"

namespace quorrin {

namespace {

constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kInfoHeaderBytes = 40;

void put(std::string& file, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) file.push_back(static_cast<char>(value >> 8 * i & 0xFF));
}

}  // namespace

std::string encodeBmp24(std::int32_t width, std::int32_t height, const std::string& pixels) {
    const auto columns = static_cast<std::size_t>(width);
    const auto rows = static_cast<std::size_t>(height);
    const std::size_t rowBytes = (columns * 3 + 3) / 4 * 4;
    const auto imageBytes = static_cast<std::uint32_t>(rowBytes * rows);
    const std::uint32_t headerBytes = kFileHeaderBytes + kInfoHeaderBytes;

    std::string file;
    file.reserve(headerBytes + imageBytes);
    file += "BM";
    put(file, headerBytes + imageBytes, 4);
    put(file, 0, 4);
    put(file, headerBytes, 4);
    put(file, kInfoHeaderBytes, 4);
    put(file, static_cast<std::uint32_t>(width), 4);
    put(file, static_cast<std::uint32_t>(height), 4);
    put(file, 1, 2);
    put(file, 24, 2);
    put(file, 0, 4);  // not compressed
    put(file, imageBytes, 4);
    for (int unused = 0; unused < 4; ++unused) put(file, 0, 4);  // resolution and palette

    for (std::size_t row = rows; row-- > 0;) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::size_t at = (row * columns + column) * 3;
            file += {pixels[at + 2], pixels[at + 1], pixels[at]};
        }
        file.append(rowBytes - columns * 3, '\0');
    }
    return file;
}

}  // namespace quorrin
