#include "console/address_boxes.h"

#include <gtest/gtest.h>

#include "support/login_bench.h"

namespace quorrin {
namespace {

constexpr Colour kDarkBlue = rgb(0, 51, 153);
constexpr Colour kWhite = rgb(255, 255, 255);
constexpr Colour kBlack = rgb(0, 0, 0);

struct AddressEditing : testing::Test {
    LoginBench bench;
    frmLogin& form = bench.form;
    AddressBoxes& boxes = bench.login.addressBoxes();

    void SetUp() override { form.show(); }
    TextBox& box(int i) { return form.txt_ip(i); }
    // All boxes filled with one digit each, focus on box 0.
    void fillOnes() {
        for (int i = 0; i <= 3; ++i) box(i).setText("1");
        box(0).operatorFocus();
    }
};

TEST_F(AddressEditing, LettersAreDropped) {
    box(3).operatorEdit("1x2");
    EXPECT_EQ(box(3).text(), "12");
}

TEST_F(AddressEditing, AValueUpTo255IsValidOnWhite) {
    box(3).operatorEdit("255");
    EXPECT_EQ(box(3).tag(), "True");
    EXPECT_EQ(box(3).backColour(), kWhite);
}

TEST_F(AddressEditing, AValueAbove255IsInvalidOnDarkBlue) {
    box(3).operatorEdit("256");
    EXPECT_EQ(box(3).tag(), "False");
    EXPECT_EQ(box(3).backColour(), kDarkBlue);
}

TEST_F(AddressEditing, AnEmptiedBoxKeepsItsMark) {
    box(3).operatorEdit("300");
    box(3).operatorEdit("");
    EXPECT_EQ(box(3).tag(), "False");
}

TEST_F(AddressEditing, ADotMovesToTheNextBox) {
    box(0).operatorFocus();
    box(0).operatorEdit("12.");
    EXPECT_EQ(form.focused(), &box(1));
    EXPECT_EQ(box(0).text(), "12");
    EXPECT_EQ(box(0).tag(), "True");
}

TEST_F(AddressEditing, ABlankMovesToTheNextBox) {
    box(1).operatorFocus();
    box(1).operatorEdit("7 ");
    EXPECT_EQ(form.focused(), &box(2));
}

TEST_F(AddressEditing, ADotInTheLastBoxMovesNowhere) {
    box(3).operatorFocus();
    box(3).operatorEdit("9.");
    EXPECT_EQ(form.focused(), &box(3));
    EXPECT_EQ(box(3).text(), "9");
}

TEST_F(AddressEditing, TheThirdDigitMovesToTheNextBox) {
    box(0).operatorFocus();
    box(0).operatorEdit("12");
    EXPECT_EQ(form.focused(), &box(0));
    box(0).operatorEdit("127");
    EXPECT_EQ(form.focused(), &box(1));
    EXPECT_EQ(box(0).text(), "127");
}

TEST_F(AddressEditing, TheThirdDigitOfTheLastBoxStays) {
    box(3).operatorFocus();
    box(3).operatorEdit("127");
    EXPECT_EQ(form.focused(), &box(3));
}

TEST_F(AddressEditing, AFocusedBoxIsMarkedWhiteOnDarkBlue) {
    box(2).setText("8");
    box(2).operatorFocus();
    EXPECT_EQ(box(2).backColour(), kDarkBlue);
    EXPECT_EQ(box(2).foreColour(), kWhite);
    EXPECT_TRUE(box(2).selected());
}

TEST_F(AddressEditing, ALeftBoxIsBlackOnWhite) {
    fillOnes();
    box(1).operatorFocus();
    EXPECT_EQ(box(0).backColour(), kWhite);
    EXPECT_EQ(box(0).foreColour(), kBlack);
}

TEST_F(AddressEditing, OneCharacterIsPaddedWithTwoBlanksOnLeaving) {
    fillOnes();
    box(1).operatorFocus();
    EXPECT_EQ(box(0).text(), "  1");
    EXPECT_EQ(box(0).tag(), "True");
    EXPECT_EQ(form.focused(), &box(1));
}

TEST_F(AddressEditing, TwoCharactersArePaddedWithOneBlankOnLeaving) {
    fillOnes();
    box(0).operatorEdit("42");
    box(1).operatorFocus();
    EXPECT_EQ(box(0).text(), " 42");
    EXPECT_EQ(form.focused(), &box(1));
}

TEST_F(AddressEditing, ThePaddingGoesWhenTheBoxGetsTheFocusAgain) {
    fillOnes();
    box(1).operatorFocus();
    box(0).operatorFocus();
    EXPECT_EQ(box(0).text(), "1");
}

TEST_F(AddressEditing, A256BecomesZeroWhenTheBoxIsLeft) {
    fillOnes();
    box(3).operatorFocus();
    box(3).operatorEdit("256");
    box(0).operatorFocus();
    EXPECT_EQ(boxes.trimmedField(3), "0");
    EXPECT_EQ(form.focused(), &box(0));
}

TEST_F(AddressEditing, LeadingZerosGoWhenTheBoxIsLeft) {
    fillOnes();
    box(3).operatorFocus();
    box(3).operatorEdit("007");
    box(0).operatorFocus();
    EXPECT_EQ(boxes.trimmedField(3), "7");
}

TEST_F(AddressEditing, AnEmptyBoxCannotBeLeftAndIsInvalid) {
    fillOnes();
    box(0).operatorEdit("");
    box(2).operatorFocus();
    EXPECT_EQ(form.focused(), &box(0));
    EXPECT_EQ(box(0).tag(), "False");
    EXPECT_EQ(box(0).foreColour(), kBlack);
}

TEST_F(AddressEditing, WhatIsTypedAfterAFailedLeaveIsTakenIn) {
    fillOnes();
    box(0).operatorEdit("");
    box(2).operatorFocus();
    box(0).operatorEdit("9x");
    EXPECT_EQ(box(0).text(), "9");
    EXPECT_EQ(box(0).tag(), "True");
}

TEST_F(AddressEditing, TheMarkGoesWhenABoxIsLeft) {
    fillOnes();
    ASSERT_TRUE(box(0).selected());
    box(1).operatorFocus();
    EXPECT_FALSE(box(0).selected());
}

TEST_F(AddressEditing, TheCheckMarksABoxThatHasTheFocusAlready) {
    fillOnes();
    box(0).setBackColour(kWhite);
    boxes.focusAndMark(0);
    EXPECT_EQ(box(0).backColour(), kDarkBlue);
}

TEST_F(AddressEditing, BackspaceInTheSecondBoxGoesForTheFirst) {
    fillOnes();
    box(3).operatorFocus();
    box(1).operatorEdit("");
    box(1).operatorKey(8);
    EXPECT_EQ(form.focused(), &box(0));
}

TEST_F(AddressEditing, BackspaceInABoxWithTextStays) {
    fillOnes();
    box(1).operatorFocus();
    box(1).operatorKey(8);
    EXPECT_EQ(form.focused(), &box(1));
}

TEST_F(AddressEditing, BackspaceInAnEmptyBoxGoesForThePreviousOne) {
    fillOnes();
    // Not the focused box, so nothing keeps the focus.
    box(2).operatorEdit("");
    box(2).operatorKey(8);
    EXPECT_EQ(form.focused(), &box(1));
}

TEST_F(AddressEditing, BackspaceInTheFirstBoxStays) {
    box(0).operatorFocus();
    box(0).operatorKey(8);
    EXPECT_EQ(form.focused(), &box(0));
}

TEST_F(AddressEditing, EnterGoesToTheNextBoxButNotFromTheLast) {
    fillOnes();
    box(0).operatorKey(13);
    EXPECT_EQ(form.focused(), &box(1));
    box(3).operatorFocus();
    box(3).operatorKey(13);
    EXPECT_EQ(form.focused(), &box(3));
}

TEST_F(AddressEditing, ADotBoxHandsTheFocusToItsAddressBox) {
    form.txt_ipdot(1).operatorFocus();
    EXPECT_EQ(form.focused(), &box(1));
}

TEST_F(AddressEditing, ADotBoxHandsTheFocusOnAfterAFullBoxWasLeft) {
    fillOnes();
    box(0).operatorEdit("12");
    box(0).setText("123");  // moves on to box 1
    box(0).operatorFocus();
    // A three-digit box needs no padding, so the mark of the padding is still set.
    form.txt_ipdot(0).operatorFocus();
    EXPECT_EQ(form.focused(), &box(1));
}

TEST_F(AddressEditing, ClearingEmptiesAllBoxesAndMarksThemInvalid) {
    fillOnes();
    boxes.clear();
    EXPECT_EQ(bench.texts(), "[][][][]");
    EXPECT_EQ(bench.tags(), "[False][False][False][False]");
}

TEST_F(AddressEditing, FieldsAreJoinedWithoutTheirPadding) {
    boxes.fill("10.20.3.4");
    box(3).operatorFocus();
    box(0).operatorFocus();
    EXPECT_EQ(boxes.joined(), "10.20.3.4");
}

TEST_F(AddressEditing, FieldsOfOneLengthAreCutRight) {
    boxes.fill("10.20.30.40");
    EXPECT_EQ(boxes.joined(), "10.20.30.40");
    EXPECT_EQ(bench.tags(), "[True][True][True][True]");
}

// The second field is cut where the first dot of the whole address stands, and so is the rest.
TEST_F(AddressEditing, FieldsOfDifferentLengthAreCutWrong) {
    boxes.fill("10.168.0.1");
    EXPECT_EQ(boxes.joined(), "10.16..01");
    EXPECT_EQ(boxes.firstInvalid(), -1);
}

TEST_F(AddressEditing, AnAddressWithoutDotsLandsInTheLastBox) {
    boxes.fill("42");
    EXPECT_EQ(bench.texts(), "[][][][42]");
    EXPECT_EQ(bench.tags(), "[][][][True]");
}

TEST_F(AddressEditing, BlanksAroundTheAddressShiftTheSecondCut) {
    boxes.fill(" 10.20.30.40");
    EXPECT_EQ(boxes.trimmedField(0), "10");
    EXPECT_NE(boxes.joined(), "10.20.30.40");
}

TEST_F(AddressEditing, ABoxWithoutAMarkIsNotInvalid) {
    EXPECT_EQ(boxes.firstInvalid(), -1);
    box(2).setTag("False");
    EXPECT_EQ(boxes.firstInvalid(), 2);
}

}  // namespace
}  // namespace quorrin
