// The joystick in a whole station: when it is opened, and what the control tick makes of it.
#include <gmock/gmock.h>

#include "navigation/teleoperation.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

struct StickBench : StationBench {
    StickBench() { sticks.attach(); }
    void press(const std::vector<std::size_t>& buttons) {
        state.buttons.fill(false);
        for (const std::size_t button : buttons) state.buttons[button] = true;
        sticks.move(state);
    }
    JoystickState state;
};

TEST(JoystickStation, IsOpenedByTheLoadAfterTheServosStartValues) {
    StickBench bench;
    std::vector<int> headAtCall;
    std::vector<std::string> log;
    bench.sticks.onCall = [&](const std::string& call) {
        if (call != "attached") return;
        headAtCall.push_back(bench.values.headCmdUpDown.value());
        log = bench.take();
    };
    bench.station.startAtMainForm();
    EXPECT_EQ(headAtCall, std::vector<int>{2000});
    EXPECT_EQ(log.back(), "myRobot.BindGateway motcom");
    EXPECT_TRUE(bench.gui.joystickRunning);
    EXPECT_TRUE(bench.gui.diDev);
    EXPECT_FALSE(bench.gui.tmrStartJoystick.running());
}

TEST(JoystickStation, AKeyThatIsHeldWhileTheFormLoadsActsThen) {
    StickBench bench;
    bench.press({2});
    bench.station.startAtMainForm();
    EXPECT_FALSE(bench.values.caEnabled);
}

TEST(JoystickStation, WithoutAStickTheStationLoadsAsEver) {
    StationBench bench;
    bench.reachWondering();
    EXPECT_EQ(bench.values.robotMode, kModeWondering);
    EXPECT_EQ(bench.gui.joystickEventHandle, 0);
}

TEST(JoystickStation, TakingOverLeadsToJoyAndLettingGoBackToWondering) {
    StickBench bench;
    bench.reachWondering();
    bench.press({0, 6});
    bench.sensorFrames(1);
    bench.tick();
    EXPECT_TRUE(bench.values.joyOverride);
    EXPECT_EQ(bench.values.robotMode, kModeJoy);
    EXPECT_EQ(bench.gui.txtRobotStatus.text(), "JOY");
    bench.press({1, 6});
    bench.sensorFrames(1);
    bench.tick();
    EXPECT_EQ(bench.values.robotMode, kModeWondering);
}

TEST(JoystickStation, TakesOverFromThePanel) {
    StickBench bench;
    bench.reachWondering();
    bench.gui.cmdShowControlPanel.operatorClick();
    bench.sensorFrames(1);
    bench.tick();
    ASSERT_EQ(bench.values.robotMode, kModeJoy);
    bench.press({0, 6});
    EXPECT_FALSE(bench.station.controlPanel.shown());
    EXPECT_FALSE(bench.values.manualPanelActive);
    EXPECT_EQ(bench.gui.cmdShowControlPanel.caption(), "Show Control");
    bench.sensorFrames(1);
    bench.tick();
    EXPECT_EQ(bench.values.robotMode, kModeJoy) << "the robot stays with the operator";
}

TEST(JoystickStation, StickAndGasTurnIntoTheDriversTarget) {
    StickBench bench;
    bench.reachWondering();
    bench.press({0, 6});
    bench.state.slider = 0;
    bench.state.y = 6001;
    bench.press({});
    bench.sensorFrames(1);
    bench.tick(3);
    EXPECT_TRUE(bench.values.reverseDrive) << "a y of 6001 drives tail first";
    ASSERT_TRUE(bench.gui.teleoperationtask);
    EXPECT_GT(bench.gui.teleoperationtask->speedFraction(), 0.0);
}

TEST(JoystickStation, LettingGoOfTheModeByTheKeyTakesTheStickOutOfCharge) {
    StickBench bench;
    bench.values.robotMode = kModeIdle;
    bench.reachWondering();
    bench.press({0, 6});
    bench.sensorFrames(1);
    bench.tick();
    bench.gui.cmdChEn.operatorClick();
    bench.sensorFrames(1);
    bench.tick(8);
    EXPECT_FALSE(bench.values.joystickActive);
    bench.state.x = 1234;
    bench.press({});
    EXPECT_NE(bench.values.steeringLevel, 1234);
}

}  // namespace
}  // namespace quorrin
