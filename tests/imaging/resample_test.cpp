#include <gtest/gtest.h>

#include <cstring>

#include "imaging/dib_section.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

// Grey, rows as they stand in memory: the first one is the bottom.
std::unique_ptr<cDIBSection> greys(const std::vector<std::vector<int>>& rows) {
    auto dib = std::make_unique<cDIBSection>();
    dib->Create(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            std::memset(dib->DIBSectionBitsPtr() + y * dib->hDib()->rowBytes() + x * 3, rows[y][x], 3);
    }
    return dib;
}

std::vector<std::vector<int>> greysOf(const cDIBSection& dib) {
    std::vector<std::vector<int>> rows;
    for (int y = 0; y < dib.Height(); ++y) {
        rows.emplace_back();
        for (int x = 0; x < dib.Width(); ++x)
            rows.back().push_back(dib.DIBSectionBitsPtr()[y * dib.BytesPerScanLine() + x * 3 + 1]);
    }
    return rows;
}

using Rows = std::vector<std::vector<int>>;

TEST(Resample, TakesTheHeightFirst) {
    const auto made = greys({{1, 2}, {3, 4}})->Resample(5, 7);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->Height(), 5);
    EXPECT_EQ(made->Width(), 7);
}

TEST(Resample, ToTheSameSizeIsAnExactCopy) {
    cDIBSection dib;
    const auto picture = scenePicture(33, 17);
    dib.CreateFromPicture(picture.get());
    const auto made = dib.Resample(17, 33);
    ASSERT_NE(made, nullptr);
    EXPECT_NE(made->DIBSectionBitsPtr(), dib.DIBSectionBitsPtr());
    EXPECT_EQ(std::memcmp(made->DIBSectionBitsPtr(), dib.DIBSectionBitsPtr(), picture->bytes()), 0);
}

// Two columns to four: a scale of 1/4, so the fractions are 0, 1/4, 1/2, 3/4 and the last column is not
// reached.
TEST(Resample, TheScaleIsTheSourceLessOneOverTheTarget) {
    EXPECT_EQ(greysOf(*greys({{0, 200}})->Resample(1, 4)), (Rows{{0, 50, 100, 150}}));
    EXPECT_EQ(greysOf(*greys({{0}, {200}})->Resample(4, 1)), (Rows{{0}, {50}, {100}, {150}}));
}

TEST(Resample, MakesSmallerOnesFromTheSamePlaces) {
    // 5 columns to 2: positions 0 and 2. 5 rows to 4: positions 0, 1, 2, 3.
    EXPECT_EQ(greysOf(*greys({{0, 10, 20, 30, 40}})->Resample(1, 2)), (Rows{{0, 20}}));
    EXPECT_EQ(greysOf(*greys({{0}, {10}, {20}, {30}, {40}})->Resample(4, 1)), (Rows{{0}, {10}, {20}, {30}}));
}

TEST(Resample, RoundsTiesToTheEvenNeighbour) {
    const auto halfWay = [](int left, int right) {
        return greysOf(*greys({{left, right}, {left, right}})->Resample(1, 2))[0][1];
    };
    EXPECT_EQ(halfWay(0, 1), 0);
    EXPECT_EQ(halfWay(1, 2), 2);
    EXPECT_EQ(halfWay(2, 3), 2);
    EXPECT_EQ(halfWay(254, 255), 254);
}

// In the upper row the columns blend down to 0.5 -> 0 and 2.5 -> 2; across, that is 0, 0.5 -> 0, 1 and 1.5
// -> 2. Rounded once, at the end, it would be 0, 1, 2, 2.
TEST(Resample, RoundsAfterTheBlendDownAndAgainAfterTheBlendAcross) {
    const auto made = greys({{0, 2}, {1, 3}})->Resample(2, 4);
    EXPECT_EQ(greysOf(*made)[1], (std::vector<int>{0, 0, 1, 2}));
}

TEST(Resample, BlendsEachChannelByItself) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(2, 1));
    setPixel(*dib.hDib(), 0, 0, {0, 100, 200});
    setPixel(*dib.hDib(), 1, 0, {100, 200, 0});
    const auto made = dib.Resample(1, 4);
    EXPECT_EQ(pixelOf(*made->hDib(), 1, 0), (PixelColour{25, 125, 150}));
    EXPECT_EQ(pixelOf(*made->hDib(), 3, 0), (PixelColour{75, 175, 50}));
}

TEST(Resample, KeepsWhatIsUpAbove) {
    cDIBSection dib;
    const auto picture = cornersPicture(8, 8);
    dib.CreateFromPicture(picture.get());
    const auto made = dib.Resample(40, 24);
    EXPECT_EQ(pixelOf(*made->hDib(), 0, 0), kUpperLeft);
    EXPECT_EQ(pixelOf(*made->hDib(), 23, 0), kUpperRight);
    EXPECT_EQ(pixelOf(*made->hDib(), 0, 39), kLowerLeft);
    EXPECT_EQ(pixelOf(*made->hDib(), 23, 39), kLowerRight);
}

// The bitmaps here are exactly as long as their rows, so that a sanitizer sees a read behind them.
TEST(Resample, ReadsNothingOutsideTheSource) {
    for (int sourceSide = 1; sourceSide <= 9; ++sourceSide) {
        cDIBSection dib;
        ASSERT_TRUE(dib.Create(sourceSide, sourceSide));
        std::memset(dib.DIBSectionBitsPtr(), 77, dib.hDib()->bytes());
        for (int side = 1; side <= 40; ++side) {
            const auto made = dib.Resample(side, side + 1);
            for (const auto& row : greysOf(*made)) {
                for (const int value : row) EXPECT_EQ(value, 77) << sourceSide << " to " << side;
            }
        }
    }
}

// The narrowest one whose last position a float rounds up to the second column, which has no neighbour.
TEST(Resample, StaysInsideWhereAFloatRoundsThePositionUp) {
    constexpr int kWidth = 13'103'685;
    const auto made = greys({{10, 20}})->Resample(1, kWidth);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(*(made->DIBSectionBitsPtr() + (kWidth - 1) * std::size_t{3}), 20);
}

TEST(Resample, GivesNothingWhenTheNewOneCannotBeMade) {
    const auto dib = greys({{1, 2}});
    EXPECT_EQ(dib->Resample(0, 5), nullptr);
    EXPECT_EQ(dib->Resample(5, -1), nullptr);
    EXPECT_EQ(dib->Resample(20'000, 20'000), nullptr);
    EXPECT_EQ(cDIBSection().Resample(1, 1), nullptr);
}

}  // namespace
}  // namespace quorrin
