#include "console/button_face.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

constexpr FaceSize kButton{120, 40};
constexpr FaceSize kCaption{50, 16};
constexpr FaceSize kIcon{20, 20};
constexpr FaceSize kNone{};

ButtonFace faceOf(std::int32_t align, FaceSize icon = kIcon, FaceSize caption = kCaption) {
    return buttonFace(kButton, caption, icon, align, false);
}

TEST(ButtonFace, ACaptionAloneStandsInTheMiddle) {
    EXPECT_EQ(faceOf(kIconLeft, kNone).lbl, (SliceRect{35, 12, 50, 16}));
}

TEST(ButtonFace, AnIconOnTheLeftStandsBeforeTheCaption) {
    const ButtonFace face = faceOf(kIconLeft);
    EXPECT_EQ(face.imgButton.right() + kIconGap, face.lbl.left);
    EXPECT_EQ(face.imgButton.left, 120 - face.lbl.right());
}

TEST(ButtonFace, AnIconOnTheRightStandsAfterTheCaption) {
    const ButtonFace face = faceOf(kIconRight);
    EXPECT_EQ(face.lbl.right() + kIconGap, face.imgButton.left);
    EXPECT_EQ(face.lbl.left, 120 - face.imgButton.right());
}

TEST(ButtonFace, AnIconInTheCentreStandsAboveTheCaption) {
    const ButtonFace face = faceOf(kIconCentre);
    EXPECT_LE(face.imgButton.bottom(), face.lbl.top);
    EXPECT_EQ(face.imgButton.left, (120 - 20) / 2);
    EXPECT_EQ(face.lbl.left, (120 - 50) / 2);
}

TEST(ButtonFace, AnUnknownAlignmentIsLeft) {
    EXPECT_EQ(faceOf(9).imgButton, faceOf(kIconLeft).imgButton);
}

TEST(ButtonFace, AnIconWithoutACaptionStandsInTheMiddleWhateverItsAlignment) {
    for (const std::int32_t align : {kIconLeft, kIconRight, kIconCentre})
        EXPECT_EQ(faceOf(align, kIcon, kNone).imgButton, (SliceRect{50, 10, 20, 20})) << align;
}

TEST(ButtonFace, IconAndCaptionStandAtTheSameHeightSideBySide) {
    const ButtonFace face = faceOf(kIconLeft);
    EXPECT_EQ(face.imgButton.top + face.imgButton.bottom(), 40);
    EXPECT_EQ(face.lbl.top + face.lbl.bottom(), 40);
}

TEST(ButtonFace, APressedFaceStandsOneUnitRightAndDown) {
    const ButtonFace rest = buttonFace(kButton, kCaption, kIcon, kIconLeft, false);
    const ButtonFace pressed = buttonFace(kButton, kCaption, kIcon, kIconLeft, true);
    EXPECT_EQ(pressed.lbl, (SliceRect{rest.lbl.left + 1, rest.lbl.top + 1, 50, 16}));
    EXPECT_EQ(pressed.imgButton, (SliceRect{rest.imgButton.left + 1, rest.imgButton.top + 1, 20, 20}));
}

TEST(ButtonFace, TheFocusRectangleIsInsetByTwoUnits) {
    const SliceRect focus = faceOf(kIconLeft).focus;
    EXPECT_EQ(focus.left, 2);
    EXPECT_EQ(focus.top, 2);
    EXPECT_EQ(focus.right(), 120 - 2);
    EXPECT_EQ(focus.bottom(), 40 - 2);
}

TEST(ButtonFace, TheFocusRectangleStaysWhenTheFaceIsPressed) {
    EXPECT_EQ(buttonFace(kButton, kCaption, kIcon, kIconLeft, true).focus, faceOf(kIconLeft).focus);
}

TEST(ButtonFace, ACaptionThatIsTooWideIsNarrowedToTheRoomThereIs) {
    for (const std::int32_t align : {kIconLeft, kIconRight, kIconCentre}) {
        const ButtonFace face = faceOf(align, kIcon, {500, 16});
        EXPECT_GE(face.lbl.left, kFaceMargin) << align;
        EXPECT_LE(face.lbl.right(), 120 - kFaceMargin) << align;
        EXPECT_GT(face.lbl.width, 50) << align;
    }
}

TEST(ButtonFace, AButtonOfNoSizeHasNoRoomAndNoFault) {
    const ButtonFace face = buttonFace({0, 0}, kCaption, kIcon, kIconLeft, false);
    EXPECT_EQ(face.lbl.width, 0);
    EXPECT_EQ(face.focus.width, 0);
}

TEST(ButtonFace, AtItsHintedSizeNothingIsNarrowed) {
    for (const std::int32_t align : {kIconLeft, kIconRight, kIconCentre}) {
        const FaceSize size = faceSizeHint(kCaption, kIcon, align);
        const ButtonFace face = buttonFace(size, kCaption, kIcon, align, false);
        EXPECT_EQ(face.lbl.width, 50) << align;
        EXPECT_GE(face.lbl.top, 0) << align;
        EXPECT_LE(face.imgButton.bottom(), size.height) << align;
    }
}

TEST(ButtonFace, WithoutAnIconTheHintIsTheCaptionAndItsMargins) {
    EXPECT_EQ(faceSizeHint(kCaption, kNone, kIconCentre).width, 50 + 2 * kFaceMargin);
}

}  // namespace
}  // namespace quorrin
