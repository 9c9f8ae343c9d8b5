#include "console/nine_slice.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

constexpr SliceRect kCell{24, 48, 24, 24};

TEST(NineSlice, TheNinePiecesHaveTheirPlaces) {
    const auto slices = nineSlices(kCell, 3, {0, 0, 100, 40}, 3);
    EXPECT_EQ(slices[0].target, (SliceRect{0, 0, 3, 3}));
    EXPECT_EQ(slices[1].target, (SliceRect{3, 0, 94, 3}));
    EXPECT_EQ(slices[2].target, (SliceRect{97, 0, 3, 3}));
    EXPECT_EQ(slices[3].target, (SliceRect{0, 3, 3, 34}));
    EXPECT_EQ(slices[4].target, (SliceRect{3, 3, 94, 34}));
    EXPECT_EQ(slices[5].target, (SliceRect{97, 3, 3, 34}));
    EXPECT_EQ(slices[6].target, (SliceRect{0, 37, 3, 3}));
    EXPECT_EQ(slices[7].target, (SliceRect{3, 37, 94, 3}));
    EXPECT_EQ(slices[8].target, (SliceRect{97, 37, 3, 3}));
}

TEST(NineSlice, TheSourcesAreTakenFromTheCell) {
    const auto slices = nineSlices(kCell, 3, {0, 0, 100, 40}, 3);
    EXPECT_EQ(slices[0].source, (SliceRect{24, 48, 3, 3}));
    EXPECT_EQ(slices[4].source, (SliceRect{27, 51, 18, 18}));
    EXPECT_EQ(slices[8].source, (SliceRect{45, 69, 3, 3}));
}

TEST(NineSlice, TheBorderIsThreeUnits) {
    EXPECT_EQ(kSliceBorder, 3);
}

TEST(NineSlice, TheCornersKeepTheirSizeWhateverTheButtons) {
    for (int width = 6; width < 400; width += 7) {
        for (int height = 6; height < 120; height += 5) {
            const auto slices = nineSlices(kCell, 3, {0, 0, width, height}, 3);
            for (const std::size_t corner : {0U, 2U, 6U, 8U}) {
                EXPECT_EQ(slices[corner].target.width, 3) << width << " " << height;
                EXPECT_EQ(slices[corner].target.height, 3) << width << " " << height;
                EXPECT_EQ(slices[corner].source.width, 3);
            }
        }
    }
}

TEST(NineSlice, ThePiecesCoverTheTargetWithoutGapOrOverlap) {
    for (int width = 0; width < 40; ++width) {
        int covered = 0;
        for (const Slice& slice : nineSlices(kCell, 3, {0, 0, width, 11}, 3))
            covered += slice.target.width * slice.target.height;
        EXPECT_EQ(covered, width * 11) << width;
    }
}

TEST(NineSlice, SourceAndTargetMayHaveBordersOfTheirOwn) {
    const auto slices = nineSlices({0, 0, 96, 96}, 12, {0, 0, 50, 50}, 5);
    EXPECT_EQ(slices[0].source, (SliceRect{0, 0, 12, 12}));
    EXPECT_EQ(slices[0].target, (SliceRect{0, 0, 5, 5}));
}

TEST(NineSlice, AnAreaSmallerThanTwoBordersSharesWhatThereIs) {
    const auto slices = nineSlices(kCell, 3, {0, 0, 5, 1}, 3);
    EXPECT_EQ(slices[0].target, (SliceRect{0, 0, 3, 1}));
    EXPECT_EQ(slices[2].target, (SliceRect{3, 0, 2, 1}));
    EXPECT_TRUE(slices[1].target.empty());
    EXPECT_TRUE(slices[8].target.empty());
}

TEST(NineSlice, ANegativeSizeIsNone) {
    for (const Slice& slice : nineSlices(kCell, 3, {0, 0, -4, -4}, 3)) EXPECT_TRUE(slice.target.empty());
}

}  // namespace
}  // namespace quorrin
