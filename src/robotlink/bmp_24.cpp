#include "robotlink/bmp_24.h"

#include <bit>
#include <cstring>

namespace quorrin {

namespace {

constexpr std::uint32_t kFileHeaderBytes = 14;
constexpr std::uint32_t kInfoHeaderBytes = 40;

void put(std::string& file, std::size_t at, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        file[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> 8 * i & 0xFF);
}

// Red and blue change places. A word at a time, of which the next pixel overwrites the fourth byte: a frame
// has 300,000 pixels, and the station waits for them.
void putRow(const char* from, char* to, std::size_t columns) {
    static_assert(std::endian::native == std::endian::little);
    for (std::size_t i = 1; i < columns; ++i, from += 3, to += 3) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, from, sizeof pixel);
        pixel = __builtin_bswap32(pixel) >> 8;
        std::memcpy(to, &pixel, sizeof pixel);
    }
    to[0] = from[2];
    to[1] = from[1];
    to[2] = from[0];
}

}  // namespace

std::string encodeBmp24(std::int32_t width, std::int32_t height, const std::string& pixels) {
    const auto columns = static_cast<std::size_t>(width);
    const auto rows = static_cast<std::size_t>(height);
    const std::size_t rowBytes = (columns * 3 + 3) / 4 * 4;
    const auto imageBytes = static_cast<std::uint32_t>(rowBytes * rows);
    const std::uint32_t headerBytes = kFileHeaderBytes + kInfoHeaderBytes;

    std::string file(headerBytes + imageBytes, '\0');
    file.replace(0, 2, "BM");
    put(file, 2, headerBytes + imageBytes, 4);
    put(file, 10, headerBytes, 4);
    put(file, 14, kInfoHeaderBytes, 4);
    put(file, 18, static_cast<std::uint32_t>(width), 4);
    put(file, 22, static_cast<std::uint32_t>(height), 4);
    put(file, 26, 1, 2);
    put(file, 28, 24, 2);
    put(file, 34, imageBytes, 4);  // not compressed, no resolution, no palette

    for (std::size_t row = 0; row < rows && columns > 0; ++row) {
        char* const to = file.data() + headerBytes + row * rowBytes;
        putRow(pixels.data() + (rows - 1 - row) * columns * 3, to, columns);
    }
    return file;
}

}  // namespace quorrin
