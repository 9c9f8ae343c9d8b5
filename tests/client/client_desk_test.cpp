// A person at the client: connecting, another station, the joystick, the end.
#include "client/client_desk.h"

#include <gtest/gtest.h>

#include "support/desk_bench.h"

namespace quorrin {
namespace {

struct ClientDeskTest : DeskBench, testing::Test {
    ClientDeskTest() {
        forward.forward = true;
        takeOver.buttons[0] = takeOver.buttons[6] = true;
        gas.slider = 4000;
    }
    void driveOn() {
        setKeys(forward);
        run(500);
    }
    void stickDrives() {
        clientSticks.attach();
        run(StickWatch::kSearchMs);
        clientSticks.move(takeOver);
        clientSticks.move({});
        clientSticks.move(gas);
        run(10);
    }
    int ends() {
        desk.end([this] { ++ended_; });
        run(kLetGoMs + ClientDesk::kEndMs + 100);
        return ended_;
    }

    static constexpr std::int64_t kLetGoMs = DriveSender::kClaimMs + 100;
    HeldKeys forward;
    JoystickState takeOver;
    JoystickState gas;
    int ended_ = 0;
};

TEST(HostIn, BlanksAroundItDoNotCount) {
    EXPECT_EQ(hostIn("  robot.local\t"), "robot.local");
}

TEST(HostIn, NothingButBlanksIsNoHost) {
    EXPECT_EQ(hostIn("  "), "");
}

TEST_F(ClientDeskTest, ConnectsToNothingByItself) {
    load();
    run(5000);
    EXPECT_FALSE(desk.started());
    EXPECT_EQ(calls.tried(7060), 0);
}

TEST_F(ClientDeskTest, ConnectsAllSixWhenItIsTold) {
    connectAll();
    EXPECT_TRUE(desk.link().allConnected());
    EXPECT_TRUE(desk.started());
}

TEST_F(ClientDeskTest, AnEmptyHostConnectsNothing) {
    load();
    desk.connect("  ");
    run(2000);
    EXPECT_FALSE(desk.started());
    EXPECT_EQ(desk.link().host(), "station");
}

TEST_F(ClientDeskTest, DisconnectingLetsTheRobotGoFirst) {
    connectAll();
    driveOn();
    EXPECT_TRUE(values.manualPanelActive);
    desk.disconnect();
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    run(kLetGoMs);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(gui.ConnectionList.count(), 0U);
}

TEST_F(ClientDeskTest, WhileItIsLeavingNothingDrivesAndNothingCanBeDriven) {
    connectAll();
    setKeys(forward);
    run(100);
    desk.disconnect();
    ASSERT_TRUE(desk.leaving()) << "the claim is too young to be let go";
    EXPECT_FALSE(desk.started());
    EXPECT_FALSE(desk.canDrive());
    setKeys({});
    setKeys(forward);
    run(100);
    EXPECT_EQ(values.gasLevel, 10000);
    run(kLetGoMs);
    EXPECT_FALSE(desk.leaving());
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(ClientDeskTest, ConnectingWhileItIsLeavingComesAfterTheRobotWasLetGo) {
    connectAll();
    setKeys(forward);
    run(100);
    desk.disconnect();
    desk.connect("station");
    run(kLetGoMs + 2000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_TRUE(desk.link().allConnected());
}

TEST_F(ClientDeskTest, AKeyThatWasLetGoWhileItLeftDrivesWhenPressedAnew) {
    connectAll();
    setKeys(forward);
    run(100);
    desk.disconnect();
    setKeys({});
    run(kLetGoMs);
    connectAll();
    setKeys(forward);
    run(10);
    EXPECT_EQ(values.gasLevel, 8500);
}

TEST_F(ClientDeskTest, WithoutAHoldItDisconnectsAtOnce) {
    connectAll();
    desk.disconnect();
    EXPECT_FALSE(desk.leaving());
    EXPECT_FALSE(desk.link().started());
}

TEST_F(ClientDeskTest, AnotherStationLetsTheRobotOfTheFirstGo) {
    connectAll();
    driveOn();
    desk.connect("other");
    run(kLetGoMs);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(desk.link().host(), "other");
    EXPECT_FALSE(desk.driver().holds());
}

TEST_F(ClientDeskTest, AnotherStationForgetsWhatIsHeldDown) {
    connectAll();
    driveOn();
    int forgotten = 0;
    desk.onKeysForgotten = [&] { ++forgotten; };
    desk.connect("other");
    run(kLetGoMs + 2000);
    EXPECT_EQ(forgotten, 1);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(ClientDeskTest, TheSameStationAgainKeepsItsConnections) {
    connectAll();
    driveOn();
    desk.connect(" station ");
    run(100);
    EXPECT_TRUE(desk.driver().holds());
    EXPECT_EQ(calls.tried(7060), 1);
}

TEST_F(ClientDeskTest, AJoystickThatTookOverDrives) {
    connectAll();
    stickDrives();
    EXPECT_EQ(values.gasLevel, 4000);
    EXPECT_TRUE(desk.driver().stickDrives());
}

TEST_F(ClientDeskTest, AJoystickThatIsPulledOutMakesTheRobotStandAndHoldsItStill) {
    connectAll();
    stickDrives();
    clientSticks.setPluggedIn(false);
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_FALSE(desk.driver().stickDrives());
}

TEST_F(ClientDeskTest, AJoystickThatIsBackDrivesOnlyAfterItTookOverAnew) {
    connectAll();
    stickDrives();
    clientSticks.setPluggedIn(false);
    run(StickWatch::kSearchMs);
    clientSticks.setPluggedIn(true);
    run(StickWatch::kSearchMs);
    clientSticks.move({});
    clientSticks.move(gas);
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(ClientDeskTest, ALostFocusSendsNeutralOnly) {
    connectAll();
    driveOn();
    desk.standStill();
    run(100);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(ClientDeskTest, TheEndLetsTheRobotGoAndClosesAllSix) {
    connectAll();
    driveOn();
    EXPECT_EQ(ends(), 1);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(gui.ConnectionList.count(), 0U);
}

TEST_F(ClientDeskTest, TheEndWithoutAConnectionIsThereAtOnce) {
    desk.end([this] { ++ended_; });
    run(50);
    EXPECT_EQ(ended_, 1);
}

TEST_F(ClientDeskTest, ASecondEndIsTheSameEnd) {
    desk.end([this] { ++ended_; });
    desk.end([this] { ended_ += 10; });
    run(5000);
    EXPECT_EQ(ended_, 1);
}

TEST_F(ClientDeskTest, TheEndWaitsForAPulledCableNoLongerThanItsTime) {
    connectAll();
    driveOn();
    calls.setPulled(true);
    EXPECT_EQ(ends(), 1);
}

TEST_F(ClientDeskTest, AfterTheEndNothingConnectsAndNoStickDrives) {
    connectAll();
    ends();
    const int tried = calls.tried(7060);
    desk.connect("station");
    stickDrives();
    run(2000);
    EXPECT_EQ(calls.tried(7060), tried);
    EXPECT_FALSE(desk.driver().stickDrives());
}

}  // namespace
}  // namespace quorrin
