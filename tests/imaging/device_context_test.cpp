#include "imaging/device_context.h"

#include <gtest/gtest.h>

#include "support/test_pictures.h"

namespace quorrin {
namespace {

constexpr PixelColour kBlack = {0, 0, 0};
constexpr PixelColour kRed = {255, 0, 0};

class BitBltTest : public ::testing::Test {
  protected:
    const std::unique_ptr<Bitmap> from = cornersPicture(4, 4);
    const std::unique_ptr<Bitmap> to = Bitmap::create(4, 4);
    DeviceContext source;
    DeviceContext target;

    BitBltTest() {
        source.select(from.get());
        target.select(to.get());
    }
    bool copy(const BlitArea& area, RasterOperation operation = RasterOperation::sourceCopy) {
        return bitBlt(target, source, area, operation);
    }
    // Every channel of one pixel, before and after.
    int mixed(int sourceValue, int targetValue, RasterOperation operation) {
        setPixel(*from, 0, 0, {sourceValue, sourceValue, sourceValue});
        setPixel(*to, 0, 0, {targetValue, targetValue, targetValue});
        EXPECT_TRUE(copy({0, 0, 1, 1, 0, 0}, operation));
        return pixelOf(*to, 0, 0).green;
    }
};

TEST(DeviceContext, TellsWhatWasSelectedBefore) {
    DeviceContext context;
    const auto bitmap = Bitmap::create(1, 1);
    EXPECT_EQ(context.select(bitmap.get()), nullptr);
    EXPECT_EQ(context.selected(), bitmap.get());
    EXPECT_EQ(context.select(nullptr), bitmap.get());
    EXPECT_EQ(context.selected(), nullptr);
}

TEST_F(BitBltTest, CountsPlacesFromTheUpperLeftCorner) {
    EXPECT_TRUE(copy({1, 2, 1, 1, 3, 0}));
    EXPECT_EQ(pixelOf(*to, 1, 2), kUpperRight);
    EXPECT_EQ(pixelOf(*to, 1, 1), kBlack);
}

TEST_F(BitBltTest, LeavesWhatIsOutsideTheArea) {
    EXPECT_TRUE(copy({0, 0, 2, 2, 0, 0}));
    EXPECT_EQ(pixelOf(*to, 1, 1), kRed);
    EXPECT_EQ(pixelOf(*to, 2, 1), kBlack);
    EXPECT_EQ(pixelOf(*to, 1, 2), kBlack);
}

TEST_F(BitBltTest, CutsAnAreaThatReachesBeyondTheTarget) {
    EXPECT_TRUE(copy({3, 3, 4, 4, 0, 0}));
    EXPECT_EQ(pixelOf(*to, 3, 3), kRed);
    EXPECT_EQ(pixelOf(*to, 2, 2), kBlack);
}

TEST_F(BitBltTest, CutsAnAreaThatBeginsBeforeEitherBitmap) {
    EXPECT_TRUE(copy({-2, 0, 4, 4, 0, 0}));
    EXPECT_EQ(pixelOf(*to, 0, 0), kUpperRight);
    EXPECT_EQ(pixelOf(*to, 2, 0), kBlack);
    EXPECT_TRUE(copy({0, 0, 4, 4, 0, -3}));
    EXPECT_EQ(pixelOf(*to, 0, 3), kUpperLeft);
}

TEST_F(BitBltTest, CopiesNothingForAnAreaFarAway) {
    constexpr std::int32_t kFar = 2'147'483'647;
    EXPECT_TRUE(copy({kFar, kFar, kFar, kFar, kFar, kFar}));
    EXPECT_TRUE(copy({-kFar, -kFar, kFar, kFar, -kFar, -kFar}));
    EXPECT_TRUE(copy({0, 0, 0, 4, 0, 0}));
    EXPECT_TRUE(copy({0, 0, -1, 4, 0, 0}));
    EXPECT_EQ(pixelOf(*to, 0, 0), kBlack);
    EXPECT_EQ(pixelOf(*to, 3, 3), kBlack);
}

TEST_F(BitBltTest, NeedsABitmapOnBothSides) {
    source.select(nullptr);
    EXPECT_FALSE(copy({0, 0, 4, 4, 0, 0}));
    source.select(from.get());
    target.select(nullptr);
    EXPECT_FALSE(copy({0, 0, 4, 4, 0, 0}));
}

TEST_F(BitBltTest, MovesWithinOneBitmapAsIfItHadBeenReadFirst) {
    for (std::int32_t x = 0; x < 4; ++x) setPixel(*from, x, 0, {x, x, x});
    DeviceContext same;
    same.select(from.get());
    EXPECT_TRUE(bitBlt(same, source, {1, 0, 3, 1, 0, 0}, RasterOperation::sourceCopy));
    for (std::int32_t x = 1; x < 4; ++x) EXPECT_EQ(pixelOf(*from, x, 0).red, x - 1);
    EXPECT_TRUE(bitBlt(same, source, {0, 1, 4, 3, 0, 0}, RasterOperation::sourceCopy));
    for (std::int32_t y = 1; y < 2; ++y) EXPECT_EQ(pixelOf(*from, 3, y).red, 2);
}

TEST_F(BitBltTest, JoinsSourceAndTargetByTheOperation) {
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::sourceCopy), 0b1100);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::sourcePaint), 0b1110);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::sourceAnd), 0b1000);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::sourceInvert), 0b0110);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::sourceErase), 0b0100);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::notSourceCopy), 0b11110011);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::notSourceErase), 0b11110001);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::mergePaint), 0b11111011);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::targetInvert), 0b11110101);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::blackness), 0);
    EXPECT_EQ(mixed(0b1100, 0b1010, RasterOperation::whiteness), 0xFF);
}

TEST_F(BitBltTest, HasNoOperationWithAPattern) {
    EXPECT_FALSE(copy({0, 0, 4, 4, 0, 0}, static_cast<RasterOperation>(0x00F00021)));
    EXPECT_EQ(pixelOf(*to, 0, 0), kBlack);
}

}  // namespace
}  // namespace quorrin
