// One client's commands and its hold on the robot.
#include "client/drive_sender.h"

#include <gmock/gmock.h>

#include "client/client_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

constexpr DriveFields kForward{5000, 4000, 10000};

struct DriveSenderTest : ClientBench, testing::Test {
    DriveSender sender{clock, link, 99};
    std::string count() const { return gui.txtCommandCount.text(); }
};

TEST_F(DriveSenderTest, EachCommandReachesTheStationWithTheNextCount) {
    connectAll();
    EXPECT_TRUE(sender.drive({6000, 4000, 9500, 1900, 2100, 3000, 0}));
    run(10);
    EXPECT_EQ(values.steeringLevel, 6000);
    EXPECT_EQ(values.gasLevel, 4000);
    EXPECT_EQ(values.brakeLevel, 9500);
    EXPECT_EQ(values.headCmdUpDown, 1900);
    EXPECT_EQ(values.headCmdLeftRight, 2100);
    EXPECT_EQ(values.mouthCmd, 3000);
    EXPECT_FALSE(values.caEnabled);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_EQ(count(), "100");
    sender.drive(kForward);
    run(10);
    EXPECT_EQ(count(), "101");
    EXPECT_EQ(sender.counter(), 101);
}

TEST_F(DriveSenderTest, SeveralCommandsThatRunTogetherAllTakeEffect) {
    connectAll();
    sender.drive(kForward);
    sender.drive({});
    sender.clos();
    sender.mode();
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(count(), "101");
    EXPECT_TRUE(values.requestIdle) << "the mode key was the last";
}

TEST(DriveCounter, BeginsAnywhereAndWrapsInside16Bits) {
    ClientBench bench;
    bench.connectAll();
    const auto counts = [&bench](std::int64_t seed) {
        DriveSender sender(bench.clock, bench.link, seed);
        sender.drive({});
        const int first = sender.counter();
        sender.drive({});
        return std::pair(first, sender.counter());
    };
    EXPECT_EQ(counts(0), std::pair(1, 2));
    EXPECT_EQ(counts(32765), std::pair(32766, 32767));
    EXPECT_EQ(counts(32766), std::pair(32767, 1));
    EXPECT_EQ(counts(32767), std::pair(1, 2));
    EXPECT_EQ(counts(-1), std::pair(32767, 1));
    EXPECT_EQ(counts(1'000'000'007), std::pair(1'000'000'007 % 32767 + 1, 1'000'000'007 % 32767 + 2));
}

TEST_F(DriveSenderTest, WithoutAConnectionNothingIsSentAndTheCountStands) {
    EXPECT_FALSE(sender.drive(kForward));
    EXPECT_FALSE(sender.mode());
    EXPECT_FALSE(sender.clos());
    EXPECT_FALSE(sender.release());
    EXPECT_EQ(sender.counter(), 99);
    EXPECT_FALSE(sender.holds());
    connectAll();
    EXPECT_EQ(count(), "0");
    EXPECT_EQ(values.gasLevel, StationBench().values.gasLevel);
}

TEST_F(DriveSenderTest, ReleaseSendsNeutralAndThenClos) {
    connectAll();
    sender.drive({6000, 4000, 10000, 1900, 2100, 3000, 0});
    EXPECT_TRUE(sender.holds());
    EXPECT_TRUE(sender.rolls());
    modeBecomes("JOY");
    run(500);
    EXPECT_TRUE(sender.release());
    EXPECT_FALSE(sender.holds());
    EXPECT_FALSE(sender.rolls());
    run(10);
    EXPECT_EQ(values.steeringLevel, 5000);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.brakeLevel, 10000);
    EXPECT_EQ(values.headCmdUpDown, 1900) << "the head stays where it is";
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(DriveSenderTest, AYoungHoldStandsAtOnceAndIsLetGoOnceTheStationHasSeenIt) {
    connectAll();
    sender.drive(kForward);
    EXPECT_TRUE(sender.release());
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_TRUE(sender.releasing());
    modeBecomes("JOY");
    EXPECT_TRUE(values.manualPanelActive);
    run(300);
    EXPECT_FALSE(sender.releasing());
    EXPECT_FALSE(sender.holds());
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(DriveSenderTest, WithoutAReportOfJoyAHoldIsLetGoAfterASecond) {
    connectAll();
    sender.drive(kForward);
    sender.release();
    run(990);
    EXPECT_TRUE(values.manualPanelActive);
    run(30);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(DriveSenderTest, ADriveCommandCallsTheReleaseOff) {
    connectAll();
    sender.drive(kForward);
    sender.release();
    sender.drive(kForward);
    run(3000);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_TRUE(sender.holds());
    EXPECT_EQ(values.gasLevel, 4000);
}

TEST_F(DriveSenderTest, AReleaseThatLosesItsConnectionIsNotMadeUpForLater) {
    connectAll();
    sender.drive(kForward);
    sender.release();
    calls.breakAll();
    run(5000);
    ASSERT_TRUE(link.connected(RemoteChannel::command));
    EXPECT_FALSE(sender.releasing());
    EXPECT_TRUE(sender.holds());
}

TEST_F(DriveSenderTest, WhoDoesNotHoldTheRobotTakesItFromNobodyByReleasing) {
    connectAll();
    values.manualPanelActive = true;
    values.gasLevel = 4000;
    EXPECT_FALSE(sender.release());
    run(10);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_EQ(values.gasLevel, 4000);
}

TEST_F(DriveSenderTest, AStandingCommandHoldsAndDoesNotRoll) {
    connectAll();
    sender.drive(kForward);
    sender.drive({});
    EXPECT_TRUE(sender.holds());
    EXPECT_FALSE(sender.rolls());
}

TEST_F(DriveSenderTest, TheHoldOutlivesALostConnectionAsAtTheStation) {
    connectAll();
    sender.drive(kForward);
    calls.breakAll();
    run(100);
    EXPECT_TRUE(sender.holds());
    EXPECT_TRUE(sender.rolls());
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(DriveSenderTest, TheHoldEndsWhenTheRobotIsSeenToLeaveJoy) {
    connectAll();
    sender.drive(kForward);
    modeBecomes("wondering");
    EXPECT_TRUE(sender.holds()) << "it is not in JOY yet";
    modeBecomes("JOY");
    EXPECT_TRUE(sender.holds());
    modeBecomes("IDLE");
    EXPECT_FALSE(sender.holds());
}

TEST_F(DriveSenderTest, AHoldThatBeginsInJoyEndsWithItToo) {
    connectAll();
    modeBecomes("JOY");
    sender.drive(kForward);
    modeBecomes("wondering");
    EXPECT_FALSE(sender.holds());
}

TEST_F(DriveSenderTest, WhatWasKnownOfTheModeIsForgottenWithTheConnection) {
    connectAll();
    modeBecomes("wondering");
    modeBecomes("JOY");
    EXPECT_EQ(sender.knownMode().beforeJoy, "wondering");
    calls.breakAll();
    run(100);
    EXPECT_EQ(sender.knownMode().now, "");
}

}  // namespace
}  // namespace quorrin
