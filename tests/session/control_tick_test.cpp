#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/program_error.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct ControlTickOrder : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;
};

TEST_F(ControlTickOrder, ASwitchedOffTickStillWritesAChangedPowerByte) {
    bench.station.startAtMainForm();
    bench.take();
    bench.tick();
    EXPECT_THAT(bench.take(), ElementsAre("robotTI.WritePowerByte 63"));
    bench.tick(5);
    EXPECT_THAT(bench.take(), IsEmpty());
    values.powerByte = 191;
    bench.tick();
    EXPECT_THAT(bench.take(), ElementsAre("robotTI.WritePowerByte 191"));
    EXPECT_EQ(gui.lblTest.caption(), "191");
}

TEST_F(ControlTickOrder, ASwitchedOffTickDoesNothingElse) {
    bench.station.startAtMainForm();
    values.tiLinkUp = true;
    values.requestWander = true;
    values.robotMode = kModeIdle;
    bench.tick(5);
    EXPECT_EQ(values.tiSilentTicks, 0);
    EXPECT_EQ(values.startStep, 0);
    EXPECT_EQ(gui.lblCom.caption(), "");
    EXPECT_EQ(gui.statusBroadcastTicks, 0);
}

TEST_F(ControlTickOrder, ShowsItsDiagnostics) {
    bench.startSession();
    values.requestWander = false;
    values.workingGas = 4321;
    gui.txtTh1.setText("77");
    gui.txtRobotP2PTask.setText("x");
    bench.tick();
    EXPECT_EQ(gui.txtRobotP2PTask.text(), "0");
    EXPECT_EQ(gui.lblJoy.caption(), "False");
    EXPECT_EQ(gui.lblth1.caption(), "77");
    EXPECT_EQ(gui.lblth2.caption(), "4321");
    EXPECT_EQ(gui.lblCa.caption(), booleanText(values.vfhActive));
    values.manualPanelActive = true;
    bench.tick();
    EXPECT_EQ(gui.lblJoy.caption(), "True");
}

TEST_F(ControlTickOrder, ShowsWhetherTheHeadingSearchRuns) {
    bench.startSession();
    values.requestWander = false;
    bench.tick();
    for (const bool active : {true, false}) {
        values.vfhActive = active;
        bench.tick();
        EXPECT_EQ(gui.lblCa.caption(), active ? "True" : "False");
    }
}

TEST_F(ControlTickOrder, AThresholdThatIsNoNumberEndsTheProgram) {
    bench.startSession();
    gui.txtTh1.setText("many");
    EXPECT_THROW(bench.tick(), ProgramError);
}

TEST_F(ControlTickOrder, TheBroadcastComesBeforeThePowerByte) {
    bench.station.seams.sendStatus = [this](int element, const std::string& record) {
        bench.log.push_back("send " + std::to_string(element) + " " + record);
    };
    bench.startSession();
    values.requestWander = false;
    bench.tick();
    gui.ConnectionList.add("client", 1);
    gui.sensorClientConnected = true;
    gui.statusBroadcastTicks = 50;
    values.powerByte = 123;
    bench.take();
    bench.tick();
    EXPECT_THAT(bench.take(), ElementsAre("myRobot.SuspendDrive 0", "myRobot.SuspendDrive 1",
                                          "send 1 0,0,0,,,0", "robotTI.WritePowerByte 123"));
}

TEST_F(ControlTickOrder, TheHeadComesBeforeTheModeStep) {
    bench.startSession();
    bench.tick();
    bench.sensorFrames(11);
    bench.tick();
    bench.take();
    bench.tick();
    std::vector<std::string> links;
    for (const std::string& line : bench.take())
        if (line.find("MoveServosTimed") != std::string::npos || line.find("ShowLcd") != std::string::npos)
            links.push_back(line.substr(0, line.find(' ')));
    EXPECT_THAT(links, ElementsAre("myRobot.MoveServosTimed", "myRobot.ShowLcdBitmap"));
}

TEST_F(ControlTickOrder, TheDisplayTimerShowsTheRanges) {
    bench.startSession();
    values.irRange = {1.0004, 2, 3, 4, 5, 6, 0.2345, 8, 9, 10};
    values.sonarRange = {0.1, 0.2, 0.3, 1.23456, 5, 6};
    const auto refreshes = gui.picRobotMap.refreshes();
    bench.clock.runFor(700);
    EXPECT_EQ(gui.IRT(1).text(), "1.000");
    EXPECT_EQ(gui.IRT(7).text(), "0.234");
    EXPECT_EQ(gui.SonarT(0).text(), "0.100");
    EXPECT_EQ(gui.SonarT(3).text(), "1.235");
    EXPECT_EQ(gui.picRobotMap.refreshes(), refreshes + 1);
}

TEST_F(ControlTickOrder, TheDisplayTimerRestsUntilItIsEnabled) {
    bench.station.startAtMainForm();
    bench.clock.runFor(3000);
    EXPECT_EQ(gui.IRT(1).text(), "");
    EXPECT_EQ(gui.picRobotMap.refreshes(), 0);
}

TEST_F(ControlTickOrder, ChangesOfTheReportedBoxesAreCounted) {
    bench.station.startAtMainForm();
    int told = 0;
    bench.station.seams.changeCountChanged = [&] { ++told; };
    gui.txtHumanLocation.setText("3");
    gui.txtRobotCurrX.operatorEdit("1");
    gui.txtRobotCurrY.operatorEdit("1");
    gui.txtRobotCurrZ.operatorEdit("1");
    gui.txtRobotStatus.setText("JOY");
    gui.txtRobotStatus.setText("JOY");
    EXPECT_EQ(gui.txtChangeCount.text(), "5");
    EXPECT_EQ(told, 5);
}

TEST_F(ControlTickOrder, AnErrorInATickIsBlamedOnItsTimer) {
    bench.startSession();
    gui.txtTh1.setText("many");
    EXPECT_THROW(bench.tick(), ProgramError);
    EXPECT_EQ(bench.clock.failedIn(), "tmrControl_Timer");
}

}  // namespace
}  // namespace quorrin
