#include "remote/drive_command.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

// What the variables hold before: a different number each.
DriveCommand before() {
    return {11, 22, 33, 44, 55, 66, 0, 77};
}

DriveCommand parsed(std::string_view payload, DriveCommand values = before()) {
    parseDriveCommand(payload, values);
    return values;
}

void expectFields(const DriveCommand& command, const std::array<int, 8>& expected) {
    const std::array<int, 8> fields = {command.steering,   command.gas,           command.brake,
                                       command.headUpDown, command.headLeftRight, command.mouth,
                                       command.avoidance,  command.count};
    EXPECT_EQ(fields, expected);
}

TEST(DriveCommand, ReadsEightNumbers) {
    expectFields(parsed("0,0,0,2000,2000,3000,1,17"), {0, 0, 0, 2000, 2000, 3000, 1, 17});
    expectFields(parsed("5100,4000,9500,2100,1900,2650,0,32767"),
                 {5100, 4000, 9500, 2100, 1900, 2650, 0, 32767});
}

TEST(DriveCommand, TheShortestCompleteOneHasFifteenCharacters) {
    expectFields(parsed("1,2,3,4,5,6,7,8"), {1, 2, 3, 4, 5, 6, 7, 8});
}

TEST(DriveCommand, ReadsNegativeNumbersAndCutsTheirSigns) {
    expectFields(parsed("-50,-1,-2,-3,-4,-5,-6,-7"), {-50, -1, -2, -3, -4, -5, -6, -7});
    expectFields(parsed("-32768,2,3,4,5,6,1,-32768"), {-32768, 2, 3, 4, 5, 6, 1, -32768});
}

TEST(DriveCommand, SixFieldsLeaveTheLastOnesMissing) {
    // The sixth has no comma behind it: 66 stands, and three characters of what is left are cut.
    expectFields(parsed("1,2,3,4,5,6"), {1, 2, 3, 4, 5, 66, 0, 77});
}

TEST(DriveCommand, AFieldWithLeadingZerosIsReadAgainInPart) {
    // 007 reads 7; "0" and "0" are cut, so the rest begins with "7,".
    const DriveCommand command = parsed("007,1,2,3,4,5,1,9");
    EXPECT_EQ(command.steering, 7);
    EXPECT_EQ(command.gas, 7);
    EXPECT_EQ(command.brake, 1);
}

TEST(DriveCommand, APlusSignOrBlanksShiftTheFieldsBehind) {
    const DriveCommand plus = parsed("+5,6,7,8,9,10,1,2");
    EXPECT_EQ(plus.steering, 5);
    // "+5" is cut, and ",6,..." is left: the second field is empty and stays.
    EXPECT_EQ(plus.gas, 22);

    const DriveCommand blank = parsed(" 5 ,6,7,8,9,10,1,2");
    EXPECT_EQ(blank.steering, 5);
    EXPECT_EQ(blank.gas, 22);  // " ," is left of the first field
}

TEST(DriveCommand, AFieldThatFailsKeepsItsValueAndIsCutByIt) {
    // "Mode" fails; 11 is two characters and the comma's one: "e,1,2,..." is left.
    const DriveCommand command = parsed("Mode,1,2,3,4,5,6");
    EXPECT_EQ(command.steering, 11);
    EXPECT_EQ(command.gas, 22);
}

TEST(DriveCommand, AFieldOutOfSixteenBitsFails) {
    EXPECT_EQ(parsed("32768,2,3,4,5,6,1,8").steering, 11);
    EXPECT_EQ(parsed("-32769,2,3,4,5,6,1,8").steering, 11);
    EXPECT_EQ(parsed("99999999999999999999,2,3").steering, 11);
    EXPECT_EQ(parsed("1,2,3,4,5,6,1,32768").count, 77);
}

TEST(DriveCommand, AFractionAnExponentOrNothingIsNoNumber) {
    for (const char* text : {"1.0", "1e3", "", "-", "+", "--1", "0x1", "1 2", "&H1"})
        EXPECT_EQ(parsed(std::string(text) + ",2,3,4,5,6,1,8").steering, 11) << text;
}

TEST(DriveCommand, TheLastFieldIsWhatRemains) {
    EXPECT_EQ(parsed("1,2,3,4,5,6,7,8,9").count, 77);  // "8,9" is no number
    EXPECT_EQ(parsed("1,2,3,4,5,6,7, 8 ").count, 8);
    EXPECT_EQ(parsed("1,2,3,4,5,6,7,").count, 77);
}

TEST(DriveCommand, ACutLongerThanTheTextLeavesItEmpty) {
    expectFields(parsed("nothing here", {-32768, -32768, 3, 4, 5, 6, 0, 7}),
                 {-32768, -32768, 3, 4, 5, 6, 0, 7});
    expectFields(parsed(""), {11, 22, 33, 44, 55, 66, 0, 77});
}

TEST(DriveCommand, LevelsAboveTenAskForJoy) {
    EXPECT_FALSE(parsed("10,0,0,0,0,0,0,0").asksForJoy());
    EXPECT_TRUE(parsed("11,0,0,0,0,0,0,0").asksForJoy());
    EXPECT_FALSE(parsed("-50,0,0,0,0,0,0,0").asksForJoy());
    // A field that failed is tested by what stands.
    EXPECT_TRUE(parsed("x,0,0,0,0,0,0,0").asksForJoy());
}

}  // namespace
}  // namespace quorrin
