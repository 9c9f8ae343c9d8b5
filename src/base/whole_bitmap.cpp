#include "base/whole_bitmap.h"

#include <cstddef>
#include <cstdint>

namespace quorrin {

namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr std::size_t kInfoHeaderBytes = 40;

std::uint32_t number(std::string_view file, std::size_t at, std::size_t bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes; ++i)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(file[at + i])) << 8 * i;
    return value;
}

bool isDepth(std::uint32_t bits) {
    for (const std::uint32_t depth : {1U, 4U, 8U, 16U, 24U, 32U}) {
        if (bits == depth) return true;
    }
    return false;
}

}  // namespace

bool isWholeBitmap(std::string_view file) {
    if (file.size() < kFileHeaderBytes + kInfoHeaderBytes || file.substr(0, 2) != "BM") return false;
    const std::uint64_t pixelsAt = number(file, 10, 4);
    if (number(file, 14, 4) < kInfoHeaderBytes || pixelsAt < kFileHeaderBytes + kInfoHeaderBytes)
        return false;

    // Rows stand from the bottom up, or, with a negative height, from the top down.
    constexpr std::int32_t kLargest = 0xFFFF;
    const auto width = static_cast<std::int32_t>(number(file, 18, 4));
    const auto height = static_cast<std::int32_t>(number(file, 22, 4));
    if (width < 1 || width > kLargest || height == 0 || height > kLargest || height < -kLargest) return false;
    const std::uint32_t bits = number(file, 28, 2);
    if (!isDepth(bits)) return false;

    const std::uint32_t compression = number(file, 30, 4);
    const bool byRows = compression == 0 || compression == 3;
    const std::uint64_t rowBytes = (static_cast<std::uint64_t>(width) * bits + 31) / 32 * 4;
    const std::uint64_t rows = static_cast<std::uint64_t>(height < 0 ? -height : height);
    const std::uint64_t pixelBytes = byRows ? rowBytes * rows : number(file, 34, 4);
    return pixelBytes > 0 && file.size() >= pixelsAt + pixelBytes;
}

}  // namespace quorrin
