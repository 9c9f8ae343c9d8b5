// What a drive command carries.
#include "client/drive_fields.h"

#include <gtest/gtest.h>

#include "remote/drive_command.h"

namespace quorrin {
namespace {

TEST(DriveFieldsTest, GoAsPlainNumbersWithTheCounterBehind) {
    EXPECT_EQ(driveText({0, 0, 0, 2000, 2000, 3000, 1}, 17), "0,0,0,2000,2000,3000,1,17");
    EXPECT_EQ(driveText({-50, 9, 10000, 1, 4000, 2650, 0}, 1), "-50,9,10000,1,4000,2650,0,1");
}

TEST(DriveFieldsTest, AreReadByTheStationAsTheyWereMeant) {
    DriveCommand read;
    parseDriveCommand(driveText({-50, 9, 10000, 1, 4000, 2650, 1}, 32767), read);
    EXPECT_EQ(read.steering, -50);
    EXPECT_EQ(read.gas, 9);
    EXPECT_EQ(read.brake, 10000);
    EXPECT_EQ(read.headUpDown, 1);
    EXPECT_EQ(read.headLeftRight, 4000);
    EXPECT_EQ(read.mouth, 2650);
    EXPECT_EQ(read.avoidance, 1);
    EXPECT_EQ(read.count, 32767);
}

TEST(DriveFieldsTest, NeutralKeepsHeadMouthAndAvoidance) {
    EXPECT_EQ(neutral({100, 0, 0, 1000, 3000, 3800, 0}),
              (DriveFields{5000, 10000, 10000, 1000, 3000, 3800, 0}));
}

TEST(DriveFieldsTest, LimitsPutEachFieldAtTheNearestEndOfItsScale) {
    EXPECT_EQ(limited({-1, -1, -1, -1, -1, -1, 7}), (DriveFields{11, 0, 0, 1, 1, 2650, 0}));
    EXPECT_EQ(limited({20000, 20000, 20000, 20000, 20000, 20000, 1}),
              (DriveFields{10000, 10000, 10000, 3500, 4000, 3850, 1}));
}

TEST(DriveFieldsTest, EverySteeringWithinTheScaleAsksForJoy) {
    DriveCommand read;
    parseDriveCommand(driveText(limited({0, 0, 10000, 2000, 2000, 3400, 1}), 1), read);
    EXPECT_TRUE(read.asksForJoy());
}

TEST(DriveFieldsTest, TheWheelsStandWithoutGasOrWithTheBrakeBelowItsMark) {
    EXPECT_TRUE(stands({}));
    EXPECT_TRUE(stands({5000, 0, 9000}));
    EXPECT_FALSE(stands({5000, 0, 9001}));
    EXPECT_FALSE(stands({5000, 9999, 10000}));
}

}  // namespace
}  // namespace quorrin
