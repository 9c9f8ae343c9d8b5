// A person at the client's keys and joystick, and what a station gets of it.
#include "client/remote_driver.h"

#include <gmock/gmock.h>

#include "client/client_bench.h"

namespace quorrin {
namespace {

struct RemoteDriverTest : ClientBench, testing::Test {
    RemoteDriver driver{clock, link};

    RemoteDriverTest() {
        forward.forward = true;
        left.left = true;
        stickForward.slider = 4000;
        takeOver.buttons[0] = takeOver.buttons[6] = true;
    }
    // The drive commands that the station has got since the last look.
    int commands() {
        const int now = std::stoi(gui.txtCommandCount.text());
        return now - std::exchange(seen, now);
    }
    void takeStick() {
        driver.setStick(takeOver);
        driver.setStick({});
        run(10);
        commands();
    }

    HeldKeys forward;
    HeldKeys left;
    JoystickState stickForward;
    JoystickState takeOver;
    int seen = 0;
};

// The counter of a driver made at time 0 begins at 1.
TEST_F(RemoteDriverTest, NothingIsSentBeforeAnybodyDoesAnything) {
    connectAll();
    driver.setKeys({});
    driver.setStick({});
    driver.standStill();
    driver.release();
    driver.setHeadUpDown(2000);
    run(10'000);
    EXPECT_EQ(commands(), 0);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(RemoteDriverTest, AHeldKeyGoesOnByAStepEachTenthOfASecondAndSendsNothingOnceItIsAtTheEnd) {
    connectAll();
    driver.setKeys(forward);
    run(10);
    EXPECT_EQ(values.gasLevel, 8500);
    EXPECT_TRUE(values.manualPanelActive);
    run(300);
    EXPECT_EQ(values.gasLevel, 7000);
    run(5000);
    EXPECT_EQ(values.gasLevel, 0);
    EXPECT_EQ(commands(), 18);
    run(5000);
    EXPECT_EQ(commands(), 0);
}

TEST_F(RemoteDriverTest, LettingTheKeysGoSendsNeutralOnlyAndTheRobotIsStillHeld) {
    connectAll();
    driver.setKeys(forward);
    run(500);
    driver.setKeys({});
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.steeringLevel, 5000);
    EXPECT_EQ(values.brakeLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_TRUE(driver.holds());
    commands();
    run(5000);
    EXPECT_EQ(commands(), 0);
}

TEST_F(RemoteDriverTest, OneOfTwoKeysLetGoLeavesTheOtherInForce) {
    connectAll();
    HeldKeys both = forward;
    both.left = true;
    driver.setKeys(both);
    run(250);
    EXPECT_EQ(values.steeringLevel, 3500);
    driver.setKeys(forward);
    run(10);
    EXPECT_EQ(values.steeringLevel, 5000);
    EXPECT_LT(values.gasLevel, 8000);
}

TEST_F(RemoteDriverTest, HeadKeysMoveTheHeadWithoutMovingTheRobotAndStayThere) {
    connectAll();
    HeldKeys up;
    up.headUp = true;
    driver.setKeys(up);
    run(250);
    driver.setKeys({});
    run(10);
    EXPECT_EQ(values.headCmdUpDown, 2300);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(RemoteDriverTest, ALostFocusStandsTheRobotStillAndAKeyPressedAnewDrivesAgain) {
    connectAll();
    driver.setKeys(forward);
    run(500);
    driver.standStill();
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
    run(5000);
    EXPECT_EQ(values.gasLevel, 10000);
    driver.setKeys(forward);
    run(10);
    EXPECT_EQ(values.gasLevel, 8500);
}

TEST_F(RemoteDriverTest, TheReleaseButtonSendsNeutralAndThenClos) {
    connectAll();
    driver.setKeys(forward);
    run(500);
    driver.release();
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(driver.releasing()) << "no report has told of JOY yet";
    run(1000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(driver.holds());
}

TEST_F(RemoteDriverTest, AKeyThatIsStillHeldAfterTheReleaseDoesNotTakeTheRobotBack) {
    connectAll();
    driver.setKeys(forward);
    run(500);
    driver.release();
    run(3000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_TRUE(driver.waitsForRest());
    HeldKeys both = forward;
    both.left = true;
    driver.setKeys(both);
    run(10);
    EXPECT_FALSE(values.manualPanelActive);
    driver.setKeys({});
    EXPECT_FALSE(driver.waitsForRest());
    driver.setKeys(forward);
    run(10);
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(RemoteDriverTest, QuittingReleasesAndTouchesNothingWhereNobodyWasDriving) {
    connectAll();
    driver.setKeys(left);
    driver.quit();
    while (driver.releasing()) run(10);
    link.stop();
    run(100);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(values.steeringLevel, 5000);
    EXPECT_EQ(gui.ConnectionList.count(), 0U);

    link.start();
    run(2000);
    values.manualPanelActive = true;  // the operator's panel
    driver.quit();
    run(10);
    EXPECT_TRUE(values.manualPanelActive);
}

TEST_F(RemoteDriverTest, TheModeKeyReachesTheStationAndHeldKeysStopCounting) {
    connectAll();
    driver.setKeys(forward);
    run(300);
    driver.modeKey();
    run(10);
    EXPECT_TRUE(values.requestIdle);
    commands();
    run(2000);
    EXPECT_EQ(commands(), 0);
}

TEST_F(RemoteDriverTest, WithoutAConnectionLevelsStandAndNothingIsKept) {
    driver.setKeys(forward);
    driver.setHeadUpDown(3000);
    run(1000);
    EXPECT_EQ(driver.levels(), DriveFields{});
    connectAll();
    run(5000);
    EXPECT_EQ(commands(), 0) << "a key that was held before the connection does not drive";
    EXPECT_TRUE(driver.waitsForRest());
    EXPECT_EQ(driver.releaseText(), "You do not hold the robot.");
}

TEST_F(RemoteDriverTest, AfterAReconnectTheOldCommandIsNotRepeatedButARobotThatRolledIsStopped) {
    connectAll();
    driver.setKeys(forward);
    run(3000);
    ASSERT_EQ(values.gasLevel, 0);
    calls.breakAll();
    run(10);
    EXPECT_EQ(values.gasLevel, 0) << "the station keeps the last levels";
    run(1200);
    EXPECT_TRUE(driver.connected());
    EXPECT_EQ(values.gasLevel, 10000);
    run(5000);
    EXPECT_EQ(values.gasLevel, 10000) << "the key is still held, and does not go on by itself";
    EXPECT_TRUE(driver.holds());
    driver.setKeys({});
    driver.setKeys(forward);
    run(10);
    EXPECT_EQ(values.gasLevel, 8500);
}

TEST_F(RemoteDriverTest, AfterAReconnectARobotThatStoodIsSentNothing) {
    connectAll();
    driver.setKeys(forward);
    run(300);
    driver.setKeys({});
    run(10);
    commands();
    calls.breakAll();
    run(10'000);
    EXPECT_TRUE(driver.connected());
    EXPECT_EQ(commands(), 0);
}

TEST_F(RemoteDriverTest, TheStickDrivesOnceItHasTakenOver) {
    connectAll();
    driver.setStick(stickForward);
    run(10);
    EXPECT_EQ(commands(), 0);
    takeStick();
    EXPECT_TRUE(driver.stickDrives());
    stickForward.x = 7000;
    driver.setStick(stickForward);
    run(10);
    EXPECT_EQ(values.gasLevel, 4000);
    EXPECT_EQ(values.steeringLevel, 7000);
}

TEST_F(RemoteDriverTest, AStickThatLetsGoStandsTheRobotStill) {
    connectAll();
    takeStick();
    driver.setStick(stickForward);
    stickForward.buttons[1] = stickForward.buttons[6] = true;
    driver.setStick(stickForward);
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_FALSE(driver.stickDrives());
}

TEST_F(RemoteDriverTest, ALostStickStandsTheRobotStillAndHasToTakeOverAnew) {
    connectAll();
    takeStick();
    driver.setStick(stickForward);
    driver.stickLost();
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(values.manualPanelActive);
    driver.setStick(stickForward);
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
}

TEST_F(RemoteDriverTest, AStickOffItsRestDoesNotGoOnAfterALostFocusUntilItHasRested) {
    connectAll();
    takeStick();
    driver.setStick(stickForward);
    driver.standStill();
    stickForward.x = 6000;
    driver.setStick(stickForward);
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_TRUE(driver.waitsForRest());
    driver.setStick({});
    driver.setStick(stickForward);
    run(10);
    EXPECT_EQ(values.gasLevel, 4000);
}

TEST_F(RemoteDriverTest, ADrivingKeyGoesBeforeTheStickWhichThenHasToRest) {
    connectAll();
    takeStick();
    driver.setStick(stickForward);
    HeldKeys brake;
    brake.brake = true;
    driver.setKeys(brake);
    run(10);
    EXPECT_EQ(values.brakeLevel, 0);
    EXPECT_EQ(values.gasLevel, 10000);
    driver.setKeys({});
    run(10);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.brakeLevel, 10000);
}

TEST_F(RemoteDriverTest, AHeldHatMovesTheHeadOnStepByStep) {
    connectAll();
    JoystickState hat;
    hat.pov = 9000;
    driver.setStick(hat);
    run(310);
    EXPECT_EQ(values.headCmdLeftRight, 2400);
    driver.setStick({});
    run(1000);
    EXPECT_EQ(values.headCmdLeftRight, 2400);
}

TEST_F(RemoteDriverTest, SlidersAreHeldToTheirScalesAndSendEachValueOnce) {
    connectAll();
    driver.setHeadUpDown(9999);
    driver.setHeadLeftRight(-5);
    driver.setMouth(0);
    driver.setAvoidance(false);
    driver.setAvoidance(false);
    run(10);
    EXPECT_EQ(values.headCmdUpDown, 3500);
    EXPECT_EQ(values.headCmdLeftRight, 1);
    EXPECT_EQ(values.mouthCmd, 2650);
    EXPECT_FALSE(values.caEnabled);
    driver.centreHead();
    run(10);
    EXPECT_EQ(values.headCmdUpDown, 2000);
    EXPECT_EQ(commands(), 5);
}

TEST_F(RemoteDriverTest, ChangesAreToldToTheWindow) {
    connectAll();
    int told = 0;
    driver.onChange.add([&] { ++told; });
    driver.setKeys(forward);
    EXPECT_GE(told, 1);
    told = 0;
    modeBecomes("JOY");
    EXPECT_GE(told, 1);
    told = 0;
    calls.breakAll();
    run(10);
    EXPECT_GE(told, 1);
}

TEST_F(RemoteDriverTest, AReleaseThatComesASecondLaterIsToldToTheWindow) {
    connectAll();
    driver.setKeys(forward);
    driver.release();
    EXPECT_TRUE(driver.holds());
    int told = 0;
    driver.onChange.add([&] { ++told; });
    run(1010);
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(driver.holds());
}

}  // namespace
}  // namespace quorrin
