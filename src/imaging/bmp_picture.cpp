#include "imaging/bmp_picture.h"

#include <cstring>
#include <string_view>
#include <utility>

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

LoadedPicture fromTheTop(std::string_view rows, std::int32_t width, std::int32_t height) {
    LoadedPicture picture{Bitmap::create(width, height), PictureFault::none};
    if (!picture.bitmap) return faulty(PictureFault::tooLarge);
    const std::size_t rowBytes = picture.bitmap->rowBytes();
    for (std::int32_t y = 0; y < height; ++y)
        std::memcpy(picture.bitmap->row(y), rows.data() + static_cast<std::size_t>(y) * rowBytes, rowBytes);
    return picture;
}

}  // namespace

LoadedPicture readBmp24(std::string content) {
    const std::string_view file = content;
    if (file.empty()) return faulty(PictureFault::empty);
    if (file.substr(0, 2) != std::string_view("BM").substr(0, file.size()))
        return faulty(PictureFault::notAPicture);
    if (file.size() < kFileHeaderBytes + kInfoHeaderBytes) return faulty(PictureFault::cutShort);

    const std::size_t rowsAt = number(file, 10, 4);
    const std::size_t headerBytes = number(file, 14, 4);
    const auto width = static_cast<std::int32_t>(number(file, 18, 4));
    const auto signedHeight = static_cast<std::int32_t>(number(file, 22, 4));
    const std::int64_t height = signedHeight < 0 ? -std::int64_t{signedHeight} : signedHeight;
    if (headerBytes < kInfoHeaderBytes || rowsAt < kFileHeaderBytes + headerBytes ||
        number(file, 26, 2) != 1 || width < 1 || height < 1)
        return faulty(PictureFault::damaged);
    if (number(file, 28, 2) != 24 || number(file, 30, 4) != 0) return faulty(PictureFault::unsupported);
    if (!Bitmap::fits(width, height)) return faulty(PictureFault::tooLarge);

    const auto bytes = static_cast<std::size_t>(bitmapRowBytes(width) * height);
    if (rowsAt > file.size() || file.size() - rowsAt < bytes) return faulty(PictureFault::cutShort);
    const auto rows = static_cast<std::int32_t>(height);
    if (signedHeight < 0) return fromTheTop(file.substr(rowsAt), width, rows);
    return {Bitmap::over(std::move(content), rowsAt, width, rows), PictureFault::none};
}

}  // namespace quorrin
