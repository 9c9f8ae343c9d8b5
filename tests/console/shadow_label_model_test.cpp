#include "console/shadow_label_model.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quorrin {
namespace {

constexpr Colour kText = rgb(10, 20, 30);
constexpr Colour kBack = rgb(240, 240, 240);
constexpr Colour kShadow = rgb(100, 100, 100);
const SystemColours kSystem = {
    {kRoleButtonText, kText}, {kRoleButtonFace, kBack}, {kRoleButtonShadow, kShadow}};
constexpr FaceSize kControl{80, 20};

struct ShadowLabelDraws : testing::Test {
    ShadowLabelProperties label;
    int measurements = 0;
    int measuredWidth = -1;

    void SetUp() override { label.caption = "Robot X"; }

    LabelDrawing drawing(FaceSize control = kControl) {
        const auto measure = [this](int width) {
            ++measurements;
            measuredWidth = width;
            return FaceSize{60, 15};
        };
        return labelDrawing(label, control, measure, kSystem);
    }
};

TEST_F(ShadowLabelDraws, SevenFiveThreeAndOneInFourColours) {
    const auto draws = drawing().draws;
    ASSERT_EQ(draws.size(), 16U);
    std::vector<int> runs = {0};
    for (std::size_t at = 0; at < draws.size(); ++at) {
        if (at > 0 && draws[at].colour != draws[at - 1].colour) runs.push_back(0);
        ++runs.back();
    }
    EXPECT_EQ(runs, (std::vector<int>{7, 5, 3, 1}));
}

TEST_F(ShadowLabelDraws, TheRectangleMovesBetweenTheDrawsAsTheShadowIsBuilt) {
    const auto draws = drawing().draws;
    std::vector<std::pair<int, int>> moves;
    for (std::size_t at = 1; at < draws.size(); ++at)
        moves.emplace_back(draws[at].rectangle.left - draws[at - 1].rectangle.left,
                           draws[at].rectangle.top - draws[at - 1].rectangle.top);
    const std::vector<std::pair<int, int>> wanted = {
        {-1, 0}, {-1, 0}, {-1, 0}, {3, -1}, {0, -1}, {0, -1},  // outer ring
        {-1, 2}, {-1, 0}, {-1, 0}, {2, -1}, {0, -1},           // inner ring
        {-1, 1}, {-1, 0}, {1, -1},                             // core
        {-1, 0}};                                              // the text
    EXPECT_EQ(moves, wanted);
}

TEST_F(ShadowLabelDraws, TheTextStandsLastInTheControlsOwnCorner) {
    const TextDraw text = drawing().draws.back();
    EXPECT_EQ(text.colour, kText);
    EXPECT_EQ(text.rectangle, (SliceRect{0, 0, 77, 17}));
}

TEST_F(ShadowLabelDraws, TheTextStandsThreeTwoAndOneUnitsUpAndLeftOfTheShadowsTones) {
    const auto draws = drawing().draws;
    EXPECT_EQ(draws[0].rectangle, (SliceRect{3, 3, 77, 17}));
    EXPECT_EQ(draws[7].rectangle, (SliceRect{2, 2, 77, 17}));
    EXPECT_EQ(draws[12].rectangle, (SliceRect{1, 1, 77, 17}));
}

TEST_F(ShadowLabelDraws, NoDrawLeavesTheControl) {
    for (const TextDraw& draw : drawing().draws) {
        EXPECT_GE(draw.rectangle.left, 0);
        EXPECT_LE(draw.rectangle.right(), 80);
        EXPECT_LE(draw.rectangle.bottom(), 20);
    }
}

TEST_F(ShadowLabelDraws, TheTonesAreMixedFromTheShadowTowardsTheBackgroundPalestFirst) {
    const auto draws = drawing().draws;
    EXPECT_EQ(draws[0].colour, mixedColour(kShadow, kBack, kOuterTone));
    EXPECT_EQ(draws[7].colour, mixedColour(kShadow, kBack, kInnerTone));
    EXPECT_EQ(draws[12].colour, mixedColour(kShadow, kBack, kCoreTone));
    EXPECT_GT(kOuterTone, kInnerTone);
    EXPECT_GT(kInnerTone, kCoreTone);
}

TEST_F(ShadowLabelDraws, AnEmptyCaptionDrawsNothing) {
    label.caption = "";
    EXPECT_TRUE(drawing().draws.empty());
}

TEST_F(ShadowLabelDraws, AnEmptyCaptionWithAutosizeGivesTheSmallestSizeUnmeasured) {
    label.caption = "";
    label.autosize = true;
    EXPECT_EQ(drawing().control.width, kShadowReach);
    EXPECT_EQ(drawing().control.height, kShadowReach);
    EXPECT_EQ(measurements, 0);
}

TEST_F(ShadowLabelDraws, WithAutosizeTheMeasuredTextGivesTheControlItsSizeBeforeAnythingIsDrawn) {
    label.autosize = true;
    const LabelDrawing all = drawing();
    EXPECT_EQ(measurements, 1);
    EXPECT_EQ(all.control.width, 60 + kShadowReach);
    EXPECT_EQ(all.control.height, 15 + kShadowReach);
    EXPECT_EQ(all.draws.back().rectangle, (SliceRect{0, 0, 60, 15}));
}

TEST_F(ShadowLabelDraws, WithoutAutosizeNothingIsMeasuredAndTheSizeStays) {
    EXPECT_EQ(drawing().control.width, 80);
    EXPECT_EQ(measurements, 0);
}

TEST_F(ShadowLabelDraws, AutosizeMeasuresAWrappedTextInTheWidthThereIs) {
    label.autosize = true;
    drawing();
    EXPECT_EQ(measuredWidth, 80 - kShadowReach);
}

TEST_F(ShadowLabelDraws, AutosizeMeasuresALineThatIsNotWrappedAsItWants) {
    label.autosize = true;
    label.wordWrap = false;
    drawing();
    EXPECT_EQ(measuredWidth, 0);
}

TEST_F(ShadowLabelDraws, AlignmentAndWrappingAreHandedOn) {
    label.alignment = kAlignRight;
    label.wordWrap = false;
    EXPECT_EQ(drawing().alignment, kAlignRight);
    EXPECT_FALSE(drawing().wordWrap);
}

TEST_F(ShadowLabelDraws, SystemColourReferencesAndPlainColoursGiveTheSameDraws) {
    const auto referred = drawing();
    label.foreColor = kText;
    label.backColor = kBack;
    label.shadowColor = kShadow;
    EXPECT_EQ(drawing().draws, referred.draws);
    EXPECT_EQ(drawing().ground, referred.ground);
}

TEST_F(ShadowLabelDraws, ABackgroundLeftAtTheSystemsFaceShowsWhatTheLabelStandsOn) {
    EXPECT_FALSE(drawing().filled);
    label.backColor = rgb(255, 255, 0);
    EXPECT_TRUE(drawing().filled);
    EXPECT_EQ(drawing().ground, rgb(255, 255, 0));
}

TEST_F(ShadowLabelDraws, ADisabledLabelsTextIsOnItsWayToTheBackground) {
    label.enabled = false;
    EXPECT_EQ(drawing().draws.back().colour, mixedColour(kText, kBack, kDisabledTone));
}

}  // namespace
}  // namespace quorrin
