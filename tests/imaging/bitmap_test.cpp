#include "imaging/bitmap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace quorrin {
namespace {

TEST(Bitmap, PadsARowToAMultipleOfFourBytes) {
    EXPECT_EQ(bitmapRowBytes(1), 4);
    EXPECT_EQ(bitmapRowBytes(2), 8);
    EXPECT_EQ(bitmapRowBytes(3), 12);
    EXPECT_EQ(bitmapRowBytes(4), 12);
    EXPECT_EQ(bitmapRowBytes(5), 16);
    EXPECT_EQ(bitmapRowBytes(640), 1920);
}

TEST(Bitmap, IsBlackAtFirst) {
    const auto bitmap = Bitmap::create(3, 2);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->bytes(), 24U);
    EXPECT_TRUE(
        std::all_of(bitmap->bits(), bitmap->bits() + 24, [](std::uint8_t byte) { return byte == 0; }));
}

TEST(Bitmap, HasItsBottomRowFirstInMemory) {
    const auto bitmap = Bitmap::create(3, 2);
    EXPECT_EQ(bitmap->row(1), bitmap->bits());
    EXPECT_EQ(bitmap->row(0), bitmap->bits() + 12);
}

TEST(Bitmap, IsNotMadeWithoutPixels) {
    EXPECT_EQ(Bitmap::create(0, 5), nullptr);
    EXPECT_EQ(Bitmap::create(5, 0), nullptr);
    EXPECT_EQ(Bitmap::create(-5, 5), nullptr);
    EXPECT_EQ(Bitmap::create(5, -5), nullptr);
}

TEST(Bitmap, IsNotMadeBeyondItsLargestSize) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    EXPECT_TRUE(Bitmap::fits(8192, 8192));
    EXPECT_FALSE(Bitmap::fits(8192, 8193));
    EXPECT_EQ(Bitmap::create(20'000, 20'000), nullptr);
    EXPECT_EQ(Bitmap::create(kMost, kMost), nullptr);
    EXPECT_EQ(Bitmap::create(kMost, 1), nullptr);
    EXPECT_EQ(Bitmap::create(1, kMost), nullptr);
}

TEST(Bitmap, UsesTheRowsOfAFileWhereTheyStand) {
    std::string content = "head" + std::string(8, 'r');
    content.reserve(1000);  // kept in place when it is moved
    const char* const rows = content.data() + 4;
    const auto bitmap = Bitmap::over(std::move(content), 4, 1, 2);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(reinterpret_cast<const char*>(bitmap->bits()), rows);
    EXPECT_EQ(*bitmap->row(0), 'r');
}

TEST(Bitmap, IsNotMadeOverAFileThatEndsBeforeItsRows) {
    EXPECT_NE(Bitmap::over(std::string(12, 'r'), 4, 1, 2), nullptr);
    EXPECT_EQ(Bitmap::over(std::string(11, 'r'), 4, 1, 2), nullptr);
    EXPECT_EQ(Bitmap::over(std::string(11, 'r'), 12, 1, 2), nullptr);
    EXPECT_EQ(Bitmap::over(std::string(12, 'r'), 4, 0, 2), nullptr);
}

}  // namespace
}  // namespace quorrin
