// The operator's joystick on scripted sticks: the order in which it is opened, and what each event does.
#include "console/joystick.h"

#include <gmock/gmock.h>

#include "platform/virtual/scripted_joysticks.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class JoystickTest : public testing::Test {
  protected:
    JoystickTest() {
        values.headCmdUpDown = 2000;
        values.headCmdLeftRight = 2000;
        values.mouthCmd = 3400;
        values.caEnabled = true;
    }
    void start() {
        joystick.InitDirectInput();
        joystick.acquireJoystick();
    }
    void attachAndStart(int buttons = 12) {
        sticks.attach(buttons);
        start();
    }
    void press(const std::vector<std::size_t>& buttons) {
        state.buttons.fill(false);
        for (const std::size_t button : buttons) state.buttons[button] = true;
        sticks.move(state);
    }
    // One more event, by which nothing changes that means anything by itself.
    void nudge() {
        state.x = state.x == 5000 ? 5001 : 5000;
        sticks.move(state);
    }
    std::vector<std::string> callsOf(const std::function<void()>& action) {
        std::vector<std::string> calls;
        sticks.onCall = [&](const std::string& call) { calls.push_back(call); };
        action();
        sticks.onCall = nullptr;
        return calls;
    }

    VirtualClock clock;
    ScriptedJoysticks sticks;
    PublicValues values;
    frmGUI gui{clock};
    frmControlPanel panel{clock};
    Joystick joystick{&sticks, values, gui, panel};
    JoystickState state;
};

TEST_F(JoystickTest, IsOpenedStepByStepInItsOrder) {
    sticks.attach();
    EXPECT_THAT(callsOf([this] { start(); }),
                ElementsAre("attached", "createEvent", "open stick0", "useJoystickFormat",
                            "shareInBackground", "buttonCount", "axisTypes", "setEventNotification 1",
                            "setDeadZone x 1000", "setDeadZone y 1000", "setSaturation x 9500",
                            "setSaturation y 9500", "setRange 0 10000", "acquire", "read"));
}

TEST_F(JoystickTest, OfSeveralDevicesTheFirstIsOpened) {
    sticks.attach(4);
    sticks.attach(8);
    start();
    EXPECT_EQ(gui.lButtons, 4);
}

TEST_F(JoystickTest, WithoutADeviceThereIsNoEventAndNoDevice) {
    EXPECT_THAT(callsOf([this] { start(); }), ElementsAre("attached"));
    EXPECT_EQ(gui.joystickEventHandle, 0);
    EXPECT_FALSE(gui.diDev);
    EXPECT_TRUE(gui.joystickRunning);
    joystick.DirectXEvent8_DXCallback(1);
    EXPECT_FALSE(values.joystickActive);
}

TEST_F(JoystickTest, WithoutAHostForJoysticksNothingHappens) {
    Joystick none(nullptr, values, gui, panel);
    none.InitDirectInput();
    none.acquireJoystick();
    EXPECT_FALSE(gui.diDev);
    EXPECT_EQ(gui.joystickEventHandle, 0);
}

TEST_F(JoystickTest, AStickThatIsPluggedInAfterwardsStaysUnseen) {
    start();
    sticks.attach();
    press({0, 6});
    EXPECT_FALSE(values.joystickActive);
}

TEST_F(JoystickTest, TheFieldsTellOfTheOpenDevice) {
    attachAndStart(11);
    EXPECT_TRUE(gui.diDev);
    EXPECT_TRUE(gui.joystickRunning);
    EXPECT_NE(gui.joystickEventHandle, 0);
    EXPECT_EQ(gui.lButtons, 11);
}

TEST_F(JoystickTest, ClosingTheAcquisitionClearsTheFlag) {
    attachAndStart();
    EXPECT_THAT(callsOf([this] { joystick.CLRLISTS(); }), ElementsAre("unacquire"));
    EXPECT_FALSE(gui.joystickRunning);
}

TEST_F(JoystickTest, ADeviceThatIsOpenIsDroppedBeforeItIsOpenedAnew) {
    attachAndStart();
    const auto calls = callsOf([this] { joystick.acquireJoystick(); });
    ASSERT_GT(calls.size(), 3U);
    EXPECT_EQ(calls[0], "unacquire");
    EXPECT_EQ(calls[1], "unacquire");
    EXPECT_EQ(calls[2], "open stick0");
    EXPECT_TRUE(gui.diDev);
    EXPECT_TRUE(gui.joystickRunning);
    press({0, 6});
    EXPECT_TRUE(values.joystickActive);
}

TEST_F(JoystickTest, ADeviceThatIsNoLongerListedIsDroppedAllTheSame) {
    attachAndStart();
    sticks.setPluggedIn(false);
    start();
    EXPECT_FALSE(gui.diDev);
}

TEST_F(JoystickTest, WithoutItsNumberOfButtonsADeviceHasNoGear) {
    sticks.failing = {"buttonCount"};
    attachAndStart();
    EXPECT_EQ(gui.lButtons, 0);
    press({0, 6});
    EXPECT_TRUE(values.joystickActive);
    EXPECT_EQ(values.joystickGear, 0);
}

TEST_F(JoystickTest, TheStateThatTheDeviceHasAtTheStartIsTaken) {
    sticks.attach();
    press({0, 6});
    start();
    EXPECT_TRUE(values.joystickActive);
    EXPECT_EQ(values.brakeLevel, 0);
}

TEST_F(JoystickTest, AxesAreToldByTheTypesOfTheirNames) {
    const auto flagsFor = [this](std::vector<std::string> types) {
        ScriptedJoysticks others;
        others.attach(2, std::move(types));
        gui.AxisPresent.fill(true);
        joystick.IdentifyAxes(others.open("stick0").get());
        std::vector<int> set;
        for (int i = 1; i <= 8; ++i) {
            if (gui.AxisPresent[static_cast<std::size_t>(i)]) set.push_back(i);
        }
        return set;
    };
    EXPECT_THAT(flagsFor({}), IsEmpty());
    EXPECT_THAT(flagsFor({"GUID_XAxis"}), ElementsAre(1));
    EXPECT_THAT(flagsFor({"GUID_YAxis"}), ElementsAre(2));
    EXPECT_THAT(flagsFor({"GUID_ZAxis"}), ElementsAre(3));
    EXPECT_THAT(flagsFor({"GUID_RxAxis"}), ElementsAre(4));
    EXPECT_THAT(flagsFor({"GUID_RyAxis"}), ElementsAre(5));
    EXPECT_THAT(flagsFor({"GUID_RzAxis"}), ElementsAre(6));
    EXPECT_THAT(flagsFor({"GUID_Slider"}), ElementsAre(7, 8));
    EXPECT_THAT(flagsFor({"GUID_POV", "guid_xaxis"}), IsEmpty());
    EXPECT_THAT(flagsFor({"GUID_Slider", "GUID_XAxis"}), ElementsAre(1, 7, 8));
}

TEST_F(JoystickTest, WithoutADeviceTheAxisFlagsAreCleared) {
    gui.AxisPresent.fill(true);
    joystick.IdentifyAxes(nullptr);
    EXPECT_THAT(gui.AxisPresent, testing::Each(false));
}

// Every call of the way to an open device, made to fail alone: the next one runs all the same.
class JoystickFailures : public JoystickTest, public testing::WithParamInterface<const char*> {};

TEST_P(JoystickFailures, ACallThatFailsIsSkippedAndTheNextOneRuns) {
    sticks.attach();
    sticks.failing = {GetParam()};
    const auto calls = callsOf([this] { start(); });
    EXPECT_THAT(calls, Contains(testing::StartsWith(GetParam())));
    EXPECT_THAT(calls, Contains("read"));
    EXPECT_TRUE(gui.joystickRunning);
}

INSTANTIATE_TEST_SUITE_P(EachCall, JoystickFailures,
                         testing::Values("createEvent", "useJoystickFormat", "shareInBackground",
                                         "buttonCount", "axisTypes", "setEventNotification", "setDeadZone",
                                         "setSaturation", "setRange", "acquire", "read"));

TEST_F(JoystickTest, ADeviceThatCannotBeOpenedIsNone) {
    sticks.attach();
    sticks.failing = {"open"};
    EXPECT_THAT(callsOf([this] { start(); }), ElementsAre("attached", "createEvent", "open stick0"));
    EXPECT_FALSE(gui.diDev);
    EXPECT_NE(gui.joystickEventHandle, 0);
}

TEST_F(JoystickTest, TriggerAndButtonSixTakeOverAndTheBrakeIsOnAtOnce) {
    attachAndStart();
    values.brakeLevel = 10000;
    press({0, 6});
    EXPECT_TRUE(values.joystickActive);
    EXPECT_EQ(values.brakeLevel, 0);
    press({6});
    EXPECT_EQ(values.brakeLevel, 10000);
}

TEST_F(JoystickTest, TakingOverHidesThePanelAndItsKeySaysShow) {
    attachAndStart();
    values.manualPanelActive = true;
    panel.show();
    gui.cmdShowControlPanel.setCaption("Hide Control");
    press({0, 6});
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Show Control");
}

TEST_F(JoystickTest, WithoutAPanelInChargeTakingOverLeavesItAsItIs) {
    attachAndStart();
    panel.show();
    gui.cmdShowControlPanel.setCaption("Hide Control");
    press({0, 6});
    EXPECT_TRUE(panel.shown());
    EXPECT_EQ(gui.cmdShowControlPanel.caption(), "Hide Control");
}

TEST_F(JoystickTest, ButtonsOneAndSixLetGoAndCentreTheHeadInTheSameEvent) {
    attachAndStart();
    press({0, 6});
    values.headCmdUpDown = 3000;
    values.headCmdLeftRight = 1000;
    values.steeringLevel = 77;
    press({1, 6});
    EXPECT_FALSE(values.joystickActive);
    EXPECT_EQ(values.headCmdUpDown, 2000);
    EXPECT_EQ(values.headCmdLeftRight, 2000);
    EXPECT_EQ(values.steeringLevel, 77) << "the levels are no longer the stick's in that event";
}

TEST_F(JoystickTest, BothPairsAtOnceLeaveTheStickOutOfCharge) {
    attachAndStart();
    press({0, 1, 6});
    EXPECT_FALSE(values.joystickActive);
}

TEST_F(JoystickTest, InChargeTheStickWritesTheLevelsAndThePanelShowsTheGas) {
    attachAndStart();
    press({0, 6});
    state.x = 4000;
    state.y = 6001;
    state.slider = 2500;
    press({});
    EXPECT_EQ(values.steeringLevel, 4000);
    EXPECT_EQ(values.joystickY, 6001);
    EXPECT_EQ(values.gasLevel, 2500);
    EXPECT_EQ(values.brakeLevel, 10000);
    EXPECT_EQ(panel.slbGasLevel.caption(), "2500");
}

TEST_F(JoystickTest, NotInChargeTheStickLeavesTheLevelsAlone) {
    attachAndStart();
    values.steeringLevel = 1;
    values.gasLevel = 2;
    values.brakeLevel = 3;
    values.joystickY = 4;
    state.x = 4000;
    state.slider = 2500;
    press({0});
    EXPECT_EQ(values.steeringLevel, 1);
    EXPECT_EQ(values.gasLevel, 2);
    EXPECT_EQ(values.brakeLevel, 3);
    EXPECT_EQ(values.joystickY, 4);
    EXPECT_EQ(panel.slbGasLevel.caption(), "");
}

TEST_F(JoystickTest, HeadMouthAndAvoidanceKeysWorkWithoutBeingInCharge) {
    attachAndStart();
    press({3});
    EXPECT_EQ(values.mouthCmd, 3500);
    press({5});
    EXPECT_EQ(values.mouthCmd, 3400);
    press({2});
    EXPECT_FALSE(values.caEnabled);
    state.pov = 9000;
    press({});
    EXPECT_EQ(values.headCmdLeftRight, 2100);
    press({1});
    EXPECT_EQ(values.headCmdUpDown, 2000);
    EXPECT_FALSE(values.joystickActive);
}

TEST_F(JoystickTest, CentringComesBeforeTheHat) {
    attachAndStart();
    values.headCmdUpDown = 3000;
    state.pov = 0;
    press({1});
    EXPECT_EQ(values.headCmdUpDown, 2100);
}

TEST_F(JoystickTest, AHeldKeyActsOnceForEachChangeOfTheState) {
    attachAndStart();
    state.pov = 0;
    press({2});
    EXPECT_FALSE(values.caEnabled);
    EXPECT_EQ(values.headCmdUpDown, 2100);
    nudge();
    EXPECT_TRUE(values.caEnabled);
    EXPECT_EQ(values.headCmdUpDown, 2200);
    nudge();
    EXPECT_FALSE(values.caEnabled);
    EXPECT_EQ(values.headCmdUpDown, 2300);
    clock.runFor(10'000);
    EXPECT_EQ(values.headCmdUpDown, 2300) << "there is no repeat timer";
}

TEST_F(JoystickTest, AGearCountsOnlyInCharge) {
    attachAndStart();
    press({8});
    EXPECT_EQ(values.joystickGear, 0);
    press({0, 6});
    EXPECT_EQ(values.joystickGear, 1);
    press({9});
    EXPECT_EQ(values.joystickGear, 10);
    press({1, 6, 7});
    EXPECT_EQ(values.joystickGear, 10) << "it has just let go";
}

TEST_F(JoystickTest, WithFewerThanSevenButtonsTheStickCannotTakeOverButItsOtherKeysWork) {
    attachAndStart(6);
    press({0, 6});
    EXPECT_FALSE(values.joystickActive);
    press({3});
    EXPECT_EQ(values.mouthCmd, 3500);
    state.pov = 27000;
    press({});
    EXPECT_EQ(values.headCmdLeftRight, 1900);
}

TEST_F(JoystickTest, ADeviceThatIsNotAcquiredIsAcquiredAnewAndNothingElseHappens) {
    attachAndStart();
    press({0, 6});
    gui.diDev->unacquire();
    values.brakeLevel = 10000;
    EXPECT_THAT(callsOf([this] { joystick.DirectXEvent8_DXCallback(1); }), ElementsAre("read", "acquire"));
    EXPECT_EQ(values.brakeLevel, 10000);
    nudge();
    EXPECT_EQ(values.brakeLevel, 0);
}

TEST_F(JoystickTest, AStickThatWasPulledOutLeavesItsLevelsAndWorksAgainWhenItIsBack) {
    attachAndStart();
    press({0, 6});
    EXPECT_THAT(callsOf([this] { sticks.setPluggedIn(false); }), ElementsAre("read", "acquire"));
    EXPECT_TRUE(values.joystickActive);
    EXPECT_EQ(values.brakeLevel, 0);
    EXPECT_THAT(callsOf([this] { sticks.setPluggedIn(true); }), ElementsAre("read", "acquire"));
    press({6});
    EXPECT_EQ(values.brakeLevel, 10000);
}

TEST_F(JoystickTest, AReadThatFailsOtherwiseLeavesTheLastStateAndTheStepsRun) {
    attachAndStart();
    press({2});
    EXPECT_FALSE(values.caEnabled);
    sticks.failing = {"read"};
    nudge();
    EXPECT_TRUE(values.caEnabled);
}

TEST_F(JoystickTest, TheDelayedStartIsNeverStartedButWouldOpenTheDeviceAndStop) {
    EXPECT_FALSE(gui.tmrStartJoystick.running());
    EXPECT_EQ(gui.tmrStartJoystick.interval(), 500);
    sticks.attach();
    gui.tmrStartJoystick.setRunning(true);
    clock.runFor(500);
    EXPECT_FALSE(gui.tmrStartJoystick.running());
    EXPECT_TRUE(gui.diDev);
    press({0, 6});
    EXPECT_TRUE(values.joystickActive);
}

}  // namespace
}  // namespace quorrin
