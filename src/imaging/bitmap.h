// A 24-bit picture in memory, as the picture operations share it. No file, no window.
//
// Pixels are three bytes: blue, green, red. Rows run from the bottom of the picture to its top, each
// width x 3 bytes long, rounded up to a multiple of four. row() counts from the top all the same, since that
// is how pictures are talked about; bits() is the first byte in memory, the bottom row's.
//
// Owned by whoever made it; pointers into it live as long as it does. A bitmap that cannot be made (a side
// below 1, more than kMostBytes, no memory) is null, never an error.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace quorrin {

// The bytes of a row of `width` pixels.
constexpr std::int64_t bitmapRowBytes(std::int64_t width) {
    return (width * 3 + 3) & ~std::int64_t{3};
}

class Bitmap {
  public:
    // 8192 x 8192 pixels. The camera's frames have a million bytes at most; what is far larger comes from a
    // file that lies about its size.
    static constexpr std::int64_t kMostBytes = std::int64_t{8192} * 8192 * 3;

    // Whether a picture of that size is one that can be made.
    static constexpr bool fits(std::int64_t width, std::int64_t height) {
        return width >= 1 && height >= 1 && width <= kMostBytes && height <= kMostBytes &&
               bitmapRowBytes(width) <= kMostBytes / height;
    }

    // Black, padding included.
    static std::unique_ptr<Bitmap> create(std::int32_t width, std::int32_t height);
    // A picture whose rows stand in a file's content from byte `at` on: they are used where they are. Null
    // also when the content ends before the rows do.
    static std::unique_ptr<Bitmap> over(std::string content, std::size_t at, std::int32_t width,
                                        std::int32_t height);

    std::int32_t width() const { return width_; }
    std::int32_t height() const { return height_; }
    std::size_t rowBytes() const { return rowBytes_; }
    // Of all rows.
    std::size_t bytes() const { return rowBytes_ * static_cast<std::size_t>(height_); }
    std::uint8_t* bits() { return bits_; }
    const std::uint8_t* bits() const { return bits_; }
    // The row `fromTop` below the uppermost one; it must be inside.
    std::uint8_t* row(std::int32_t fromTop) { return bits_ + rowAt(fromTop); }
    const std::uint8_t* row(std::int32_t fromTop) const { return bits_ + rowAt(fromTop); }

  private:
    struct Free {
        void operator()(std::uint8_t* memory) const { std::free(memory); }
    };

    Bitmap(std::int32_t width, std::int32_t height);
    std::size_t rowAt(std::int32_t fromTop) const {
        return rowBytes_ * static_cast<std::size_t>(height_ - 1 - fromTop);
    }

    std::int32_t width_;
    std::int32_t height_;
    std::size_t rowBytes_;
    // One of the two holds the pixels.
    std::unique_ptr<std::uint8_t, Free> memory_;
    std::string content_;
    std::uint8_t* bits_ = nullptr;
};

}  // namespace quorrin
