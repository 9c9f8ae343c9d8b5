#include "console/control_panel_switch.h"

#include <gtest/gtest.h>

#include "navigation/teleoperation.h"
#include "platform/virtual/virtual_clock.h"
#include "support/fake_link.h"

namespace quorrin {
namespace {

struct ControlPanelSwitch : testing::Test {
    VirtualClock clock;
    PublicValues values;
    frmGUI gui{clock};
    frmControlPanel panel{clock};
    FakeLink myRobot;

    void SetUp() override {
        bindControlPanelSwitch(values, gui, panel);
        gui.show();
        values.steeringLevel = 100;
        values.gasLevel = 200;
        values.brakeLevel = 300;
        values.joystickDriveLatch = true;
    }
};

TEST_F(ControlPanelSwitch, ShowingThePanelTakesTheRobotWithoutGasOrBrake) {
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_TRUE(panel.shown());
    EXPECT_EQ(values.steeringLevel, 5000);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_EQ(values.brakeLevel, 10000);
    EXPECT_EQ(panel.slbGasLevel.caption(), "10000");
    EXPECT_FALSE(values.joystickDriveLatch);
}

TEST_F(ControlPanelSwitch, HidingThePanelLetsGoAndLeavesTheLevels) {
    gui.cmdShowControlPanel.operatorClick();
    values.gasLevel = 4000;
    gui.cmdShowControlPanel.operatorClick();
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(values.gasLevel, 4000);
    EXPECT_TRUE(values.joystickDriveLatch);
}

TEST_F(ControlPanelSwitch, ThePanelsOwnCloseKeySuspendsTheDriver) {
    gui.teleoperationtask = std::make_shared<Teleoperation>(clock, values, gui, myRobot);
    gui.teleoperationtask->continue_();
    gui.cmdShowControlPanel.operatorClick();
    panel.cmdClose.operatorClick();
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
    EXPECT_FALSE(gui.teleoperationtask->active());
    EXPECT_TRUE(myRobot.asked("SuspendDrive 1"));
}

TEST_F(ControlPanelSwitch, ClosingThePanelsWindowClearsTheFlagAlone) {
    gui.cmdShowControlPanel.operatorClick();
    panel.operatorClose();
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
}

}  // namespace
}  // namespace quorrin
