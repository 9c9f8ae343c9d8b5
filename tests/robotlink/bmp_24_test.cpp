#include "robotlink/bmp_24.h"

#include <gtest/gtest.h>

#include "base/whole_bitmap.h"
#include "imaging/picture_loader.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

TEST(Bmp24, IsAFileByteByByte) {
    const std::string file = encodeBmp24(1, 2, std::string("\x01\x02\x03\x04\x05\x06", 6));
    EXPECT_EQ(file, std::string("BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"
                                "\x28\0\0\0\x01\0\0\0\x02\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0"
                                "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
                                "\x06\x05\x04\0\x03\x02\x01\0",
                                62));
}

TEST(Bmp24, WithoutPixelsIsAHeader) {
    EXPECT_EQ(encodeBmp24(0, 2, "").size(), 54U);
    EXPECT_EQ(encodeBmp24(2, 0, "").size(), 54U);
}

TEST(Bmp24, ComesBackFromTheReaderWithEveryPad) {
    for (std::int32_t width = 1; width <= 9; ++width) {
        const auto picture = scenePicture(width, 5);
        std::string pixels;
        for (std::int32_t y = 0; y < 5; ++y) {
            for (std::int32_t x = 0; x < width; ++x) {
                const PixelColour colour = pixelOf(*picture, x, y);
                for (const int channel : {colour.red, colour.green, colour.blue})
                    pixels += static_cast<char>(channel);
            }
        }
        const std::string file = encodeBmp24(width, 5, pixels);
        EXPECT_TRUE(isWholeBitmap(file));
        const LoadedPicture read = readPicture(file);
        ASSERT_NE(read.bitmap, nullptr);
        for (std::int32_t y = 0; y < 5; ++y) {
            for (std::int32_t x = 0; x < width; ++x)
                EXPECT_EQ(pixelOf(*read.bitmap, x, y), pixelOf(*picture, x, y));
        }
    }
}

}  // namespace
}  // namespace quorrin
