#include "console/login.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/general_functions.h"
#include "support/login_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct LoginForm : testing::Test {
    LoginBench bench;
    frmLogin& form = bench.form;

    void load() { bench.login.Form_Load(); }
    std::string stored(const char* file, const char* key) {
        return ReadIni("WiFi", key, std::string("/windows/") + file, bench.files);
    }
};

TEST_F(LoginForm, BuildsThePathsOfTheSession) {
    load();
    EXPECT_EQ(bench.paths.applicationFolder, "/app");
    EXPECT_EQ(bench.paths.gatewayTiExePath, "/programs/QuorrinGatewayTI");
    EXPECT_EQ(bench.paths.gatewayMotExePath, "/programs/QuorrinGatewaymot");
    EXPECT_EQ(bench.paths.gatewayMotIniPath, "/windows/gateway_mot.ini");
    EXPECT_EQ(bench.paths.gatewayTiIniPath, "/windows/gateway_ti.ini");
    EXPECT_EQ(bench.paths.sdkIniPath, "/app/Quorrinsdk.ini");
}

TEST_F(LoginForm, AFirstStartShowsTheDefaultsAndEnablesOk) {
    load();
    EXPECT_TRUE(form.shown());
    EXPECT_EQ(bench.login.addressBoxes().joined(), "127.127.0.1");
    EXPECT_EQ(form.txtRobotPort.text(), "10001");
    EXPECT_TRUE(form.cmdOK.enabled());
    EXPECT_EQ(form.focused(), &form.txt_ip(0));
    EXPECT_THAT(bench.log, IsEmpty());
}

TEST_F(LoginForm, AddressComesFromTheMultimediaFileAndPortFromTheMotionFile) {
    bench.files.put("/windows/gateway_mot.ini", LoginBench::profile("1.1.1.1", "20001"));
    bench.files.put("/windows/gateway_ti.ini", LoginBench::profile("10.20.30.40", "20002"));
    load();
    EXPECT_EQ(bench.paths.robotIp, "10.20.30.40");
    EXPECT_EQ(form.txtRobotPort.text(), "20001");
}

TEST_F(LoginForm, WithoutTheMotionFileTheMultimediaFileIsNotRead) {
    bench.files.put("/windows/gateway_ti.ini", LoginBench::profile("10.20.30.40", "20002"));
    load();
    EXPECT_EQ(bench.paths.robotIp, "127.127.0.1");
}

TEST_F(LoginForm, OneEmptyValueBringsBothDefaults) {
    bench.store("10.20.30.40", "", "1");
    load();
    EXPECT_EQ(bench.paths.robotIp, "127.127.0.1");
    EXPECT_EQ(bench.paths.robotPort, "10001");
}

TEST_F(LoginForm, AnUnevenStoredAddressIsShownWrongAndTypingItAgainRepairsIt) {
    bench.store("10.168.0.1", "10001", "10002");
    load();
    EXPECT_NE(bench.login.addressBoxes().joined(), "10.168.0.1");
    int i = 0;
    for (const char* field : {"10", "168", "0", "1"}) {
        form.txt_ip(i).operatorFocus();
        form.txt_ip(i++).operatorEdit(field);
    }
    form.cmdOK.operatorClick();
    EXPECT_EQ(bench.paths.robotIp, "10.168.0.1");
}

// What the odd cut makes of the commonest loopback address: the second field takes the third along, the third
// stays empty, and an empty box holds the focus and is invalid.
TEST_F(LoginForm, AStoredLoopbackAddressIsShownWrongAndHoldsTheForm) {
    bench.store("127.0.0.1", "10001", "10002");
    load();
    EXPECT_EQ(bench.login.addressBoxes().joined(), "127.00..1");
    EXPECT_EQ(bench.tags(), "[True][True][False][True]");
    EXPECT_EQ(form.focused(), &form.txt_ip(2));
    EXPECT_FALSE(form.cmdOK.enabled());
    bench.clock.runFor(300);
    EXPECT_FALSE(form.cmdOK.enabled());
    EXPECT_THAT(bench.log, testing::Each("box No valid IP-address|"));
    // Once in the load, then at each period of the timer.
    EXPECT_EQ(bench.log.size(), 4U);

    int i = 0;
    for (const char* field : {"127", "0", "0", "1"}) form.txt_ip(i++).operatorEdit(field);
    bench.clock.runFor(100);
    EXPECT_TRUE(form.cmdOK.enabled());
    form.cmdOK.operatorClick();
    EXPECT_EQ(bench.paths.robotIp, "127.0.0.1");
    EXPECT_EQ(stored("gateway_mot.ini", "WiFiIP"), "127.0.0.1");
}

TEST_F(LoginForm, OkTakesTheAddressThatWasTyped) {
    load();
    form.txt_ip(3).operatorFocus();
    form.txt_ip(3).operatorEdit("77");
    form.cmdOK.operatorClick();
    EXPECT_EQ(bench.paths.robotIp, "127.127.0.77");
    EXPECT_EQ(stored("gateway_mot.ini", "WiFiIP"), "127.127.0.77");
    EXPECT_EQ(stored("gateway_ti.ini", "WiFiIP"), "127.127.0.77");
}

TEST_F(LoginForm, AnInvalidFirstBoxIsFoundToo) {
    load();
    form.txt_ip(0).setTag("False");
    bool result = true;
    bench.login.checkIP(result);
    EXPECT_FALSE(result);
    EXPECT_EQ(form.focused(), &form.txt_ip(0));
    EXPECT_THAT(bench.log, ElementsAre("box No valid IP-address|"));
}

TEST_F(LoginForm, PortZeroKeepsOkDisabled) {
    bench.store("10.20.30.40", "0", "1");
    load();
    EXPECT_FALSE(form.cmdOK.enabled());
    bench.clock.runFor(500);
    EXPECT_FALSE(form.cmdOK.enabled());
}

TEST_F(LoginForm, TheTimerEnablesOkAndStopsOnceAllIsValid) {
    bench.store("10.20.30.40", "0", "1");
    load();
    form.txtRobotPort.operatorEdit("7");
    EXPECT_FALSE(form.cmdOK.enabled());
    bench.clock.runFor(100);
    EXPECT_TRUE(form.cmdOK.enabled());
    EXPECT_FALSE(form.Timer2.running());
}

TEST_F(LoginForm, TheTimerDisablesOkWhileABoxIsInvalid) {
    load();
    form.txt_ip(3).operatorFocus();
    form.txt_ip(3).operatorEdit("256");
    bench.clock.runFor(100);
    EXPECT_FALSE(form.cmdOK.enabled());
    EXPECT_TRUE(form.Timer2.running());
    EXPECT_THAT(bench.log, ElementsAre("box No valid IP-address|"));
}

TEST_F(LoginForm, AfterTheTimerHasStoppedNothingWatchesTheBoxes) {
    load();
    bench.clock.runFor(100);
    form.txt_ip(3).operatorFocus();
    form.txt_ip(3).operatorEdit("999");
    bench.clock.runFor(1000);
    EXPECT_TRUE(form.cmdOK.enabled());
}

TEST_F(LoginForm, CheckIpLeavesTheFieldsEachWithADotInTheBuffer) {
    load();
    bool result = false;
    bench.login.checkIP(result);
    EXPECT_TRUE(result);
    EXPECT_EQ(bench.login.checkBuffer(), "127.127.0.1.");
}

TEST_F(LoginForm, CheckIpFocusesTheFirstInvalidBoxAndTells) {
    load();
    form.txt_ip(1).setTag("False");
    form.txt_ip(2).setTag("False");
    bool result = true;
    bench.login.checkIP(result);
    EXPECT_FALSE(result);
    EXPECT_EQ(bench.login.checkBuffer(), "");
    EXPECT_EQ(form.focused(), &form.txt_ip(1));
    EXPECT_EQ(form.txt_ip(1).backColour(), rgb(0, 51, 153));
    EXPECT_THAT(bench.log, ElementsAre("box No valid IP-address|"));
}

TEST_F(LoginForm, AnOpenBoxIsNotJoinedByASecondOne) {
    load();
    form.txt_ip(1).setTag("False");
    // The timer comes due while the box stands open.
    int shown = 0;
    bench.boxes.onShow = [&](const std::string&, const std::string&, BoxAnswer) {
        if (++shown == 1) bench.clock.runFor(250);
    };
    bool result = true;
    bench.login.checkIP(result);
    EXPECT_EQ(shown, 1);
    // Closed, it makes way for the next one.
    bench.clock.runFor(100);
    EXPECT_EQ(shown, 2);
}

TEST_F(LoginForm, ThePortKeepsDigitsOnly) {
    load();
    form.txtRobotPort.operatorEdit("1a0b");
    EXPECT_EQ(form.txtRobotPort.text(), "10");
    EXPECT_EQ(form.txtRobotPort.tag(), "True");
}

TEST_F(LoginForm, OkWritesBothProfilesClosesLeftoversAndHandsOver) {
    load();
    form.txtRobotPort.operatorEdit("20001");
    form.cmdOK.operatorClick();
    EXPECT_EQ(stored("gateway_mot.ini", "WiFiIP"), "127.127.0.1");
    EXPECT_EQ(stored("gateway_mot.ini", "WiFiPort"), "20001");
    EXPECT_EQ(stored("gateway_mot.ini", "BTAddress"), "0000000000");
    EXPECT_EQ(stored("gateway_ti.ini", "WiFiIP"), "127.127.0.1");
    EXPECT_EQ(stored("gateway_ti.ini", "WiFiPort"), "20002");
    EXPECT_EQ(stored("gateway_ti.ini", "BTAddress"), "0000000000");
    EXPECT_EQ(bench.paths.robotPort, "20001");
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(form.cmdOK.enabled());
    EXPECT_FALSE(form.txtRobotPort.enabled());
    EXPECT_FALSE(form.txt_ip(0).enabled());
    EXPECT_FALSE(form.txt_ip(3).enabled());
    EXPECT_THAT(bench.log, ElementsAre("EndTask Quorrin Gateway_MotionControl",
                                       "EndTask Quorrin Gateway_Multimedia", "main form"));
}

TEST_F(LoginForm, TheNextStartShowsTheMotionPort) {
    load();
    form.txtRobotPort.operatorEdit("20001");
    form.cmdOK.operatorClick();
    LoginBench next;
    next.files.put("/windows/gateway_mot.ini", *bench.files.read("/windows/gateway_mot.ini"));
    next.files.put("/windows/gateway_ti.ini", *bench.files.read("/windows/gateway_ti.ini"));
    next.login.Form_Load();
    EXPECT_EQ(next.form.txtRobotPort.text(), "20001");
    EXPECT_EQ(next.login.addressBoxes().joined(), "127.127.0.1");
}

TEST_F(LoginForm, ThePortAboveIsNotLimitedToSixteenBits) {
    load();
    form.txtRobotPort.operatorEdit("70000");
    form.cmdOK.operatorClick();
    EXPECT_EQ(stored("gateway_ti.ini", "WiFiPort"), "70001");
}

TEST_F(LoginForm, APortOfAbsurdLengthStillHasOneAbove) {
    load();
    form.txtRobotPort.operatorEdit("1000000000000000000000");
    form.cmdOK.operatorClick();
    EXPECT_EQ(stored("gateway_mot.ini", "WiFiPort"), "1000000000000000000000");
    EXPECT_EQ(stored("gateway_ti.ini", "WiFiPort"), "1e+21");
}

TEST_F(LoginForm, AFullDiskDoesNotHoldTheHandOver) {
    load();
    bench.files.setDiskFull(true);
    form.cmdOK.operatorClick();
    EXPECT_THAT(bench.log, testing::Contains("main form"));
}

TEST_F(LoginForm, CancelEndsTheProgram) {
    load();
    form.cmdCancel.operatorClick();
    EXPECT_THAT(bench.log, ElementsAre("end"));
}

TEST_F(LoginForm, ClosingTheWindowEndsTheProgram) {
    load();
    form.operatorClose();
    EXPECT_THAT(bench.log, ElementsAre("end"));
}

}  // namespace
}  // namespace quorrin
