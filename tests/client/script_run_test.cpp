// Scripts against a whole station, in virtual time.
#include "client/script_run.h"

#include <gmock/gmock.h>

#include <memory>

#include "client/client_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

struct ScriptRunTest : ClientBench, testing::Test {
    void begin(const std::string& text) {
        RemoteScript parsed = parseRemoteScript(text);
        ASSERT_EQ(parsed.error, "");
        script = std::make_unique<ScriptRun>(
            clock, calls, link, std::move(parsed),
            ScriptRun::Ends{[this](const std::string& line) { said.push_back(line); },
                            [this](const std::string& why) { complaints.push_back(why); },
                            [this](int code) { status = code; }});
        beganMs = clock.nowMs();
        script->start();
    }
    // The status; -1 when it has not ended by then.
    int runs(const std::string& text, std::int64_t atMostMs = 120'000) {
        begin(text);
        while (status < 0 && clock.nowMs() < beganMs + atMostMs) run(10);
        tookMs = clock.nowMs() - beganMs;
        return status;
    }
    void load() { station.startAtMainForm(); }

    std::unique_ptr<ScriptRun> script;
    std::vector<std::string> said;
    std::vector<std::string> complaints;
    int status = -1;
    std::int64_t beganMs = 0;
    std::int64_t tookMs = 0;
};

TEST_F(ScriptRunTest, AnEmptyScriptHoldsAndConnectsNothing) {
    load();
    EXPECT_EQ(runs("# nothing\n"), 0);
    EXPECT_EQ(calls.tried(7060), 0);
}

TEST_F(ScriptRunTest, ConnectGoesOnOnceAllSixStand) {
    load();
    EXPECT_EQ(runs("connect\nquit\n"), 0);
    EXPECT_EQ(accepted.size(), 6U);
    EXPECT_LT(tookMs, 3000);
    EXPECT_THAT(said, Contains(EndsWith(" connected speech")));
    EXPECT_EQ(gui.ConnectionList.count(), 0U) << "the end closes in order";
}

TEST_F(ScriptRunTest, ConnectWaitsTenSecondsForAStationAndThenDoesNotHold) {
    EXPECT_EQ(runs("connect\nquit\n"), 1);
    EXPECT_THAT(complaints, ElementsAre("line 1: connect: no command connection: Connection refused"));
    EXPECT_GE(tookMs, 10'000);
    EXPECT_LT(tookMs, 11'000);
}

TEST_F(ScriptRunTest, ConnectTakesAStationThatComesUpMeanwhile) {
    begin("connect\n");
    run(5000);
    load();
    run(8000);
    EXPECT_EQ(status, 0);
}

TEST_F(ScriptRunTest, AStationThatRefusesDoesNotHold) {
    load();
    gui.chkRemote.operatorSet(false);
    EXPECT_EQ(runs("connect\n"), 1);
    EXPECT_THAT(complaints,
                ElementsAre("line 1: connect: no command connection: the station closed the connection"));
}

TEST_F(ScriptRunTest, DriveModeAndClosReachTheStation) {
    load();
    begin("connect\ndrive 6000 4000 9500 1900 2100 3000 1\nwait 1000\nclos\nwait 1000\nmode\nwait 1000\n");
    run(2000);
    EXPECT_EQ(values.steeringLevel, 6000);
    EXPECT_EQ(values.gasLevel, 4000);
    EXPECT_TRUE(values.manualPanelActive);
    run(1000);
    EXPECT_FALSE(values.manualPanelActive);
    EXPECT_EQ(values.gasLevel, 4000) << "clos alone changes no level";
    run(1000);
    EXPECT_TRUE(values.requestIdle);
    run(2000);
    EXPECT_EQ(status, 0);
}

TEST_F(ScriptRunTest, ARobotThatIsStillHeldIsLetGoAtTheEnd) {
    load();
    EXPECT_EQ(runs("connect\ndrive 5000 4000 10000 2000 2000 3400 1\n"), 0);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(ScriptRunTest, AFailureLetsTheRobotGoToo) {
    load();
    EXPECT_EQ(runs("connect\ndrive 5000 4000 10000 2000 2000 3400 1\nexpect report never within 500\n"), 1);
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(ScriptRunTest, AnExpectIsMetByAReportThatComesInTime) {
    load();
    begin("connect\nping off\nexpect report ,JOY, within 2000\n");
    run(2500);
    EXPECT_EQ(status, -1);
    modeBecomes("JOY");
    run(1000);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(said, Contains(EndsWith(" report 0,0,0,,JOY,0")));
}

TEST_F(ScriptRunTest, AnExpectThatIsNotMetInTimeTellsTheLastReport) {
    load();
    begin("connect\nexpect report ,JOY, within 2000\n");
    run(2500);
    modeBecomes("IDLE");
    run(3000);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(complaints,
                ElementsAre("line 2: expect report ,JOY, within 2000: no such report came; the last "
                            "one was 0,0,0,,IDLE,0"));
}

TEST_F(ScriptRunTest, WithoutAnyReportItSaysThat) {
    load();
    EXPECT_EQ(runs("connect\nexpect report . within 100\n"), 1);
    EXPECT_THAT(complaints, ElementsAre(EndsWith("no report came")));
}

TEST_F(ScriptRunTest, AnExpectTakesAReportThatCameDuringAWait) {
    load();
    begin("connect\nwait 2000\nexpect report ,JOY, within 0\n");
    run(2500);
    modeBecomes("JOY");
    run(3000);
    EXPECT_EQ(status, 0);
}

TEST_F(ScriptRunTest, AReportFromBeforeTheLastCommandDoesNotCount) {
    load();
    begin("connect\nwait 2000\nmode\nexpect report ,JOY, within 100\n");
    run(2500);
    modeBecomes("JOY");
    run(5000);
    EXPECT_EQ(status, 1);
}

TEST_F(ScriptRunTest, OneReportMeetsOneExpect) {
    load();
    begin("connect\nexpect report ,JOY, within 3000\nexpect report ,JOY, within 500\n");
    run(2500);
    modeBecomes("JOY");
    run(3000);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(complaints, ElementsAre(StartsWith("line 3: ")));
}

TEST_F(ScriptRunTest, WithoutTheSensorConnectionAnExpectFailsAtOnce) {
    load();
    EXPECT_EQ(runs("connect\nhangup sensor\nexpect report . within 60000\n", 10'000), 1);
    EXPECT_THAT(complaints, ElementsAre(EndsWith("there is no sensor connection")));
}

TEST_F(ScriptRunTest, AnExpectFailsAtOnceWhenTheSensorConnectionGoes) {
    load();
    begin("connect\nexpect report . within 60000\n");
    run(3000);
    calls.breakAll();
    run(200);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(complaints, ElementsAre(EndsWith("the sensor connection is gone")));
}

TEST_F(ScriptRunTest, ACommandWithoutItsConnectionIsNotMet) {
    load();
    EXPECT_EQ(runs("drive 1 2 3 4 5 6 7\n"), 1);
    EXPECT_THAT(complaints,
                ElementsAre("line 1: drive 1 2 3 4 5 6 7: nothing was sent: there is no command connection"));
}

TEST_F(ScriptRunTest, ATextWithoutItsConnectionIsNotMet) {
    load();
    EXPECT_EQ(runs("connect\nhangup speech\nsay hello\n"), 1);
    EXPECT_THAT(complaints, ElementsAre(EndsWith("there is no speech connection")));
}

TEST_F(ScriptRunTest, ALostConnectionIsNotTakenUpAgainByItselfButByConnect) {
    load();
    begin("connect\nwait 3000\nconnect\nwait 1000\n");
    run(2500);
    calls.breakAll();
    run(1500);
    EXPECT_EQ(calls.tried(7060), 1);
    run(8000);
    EXPECT_EQ(calls.tried(7060), 2);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(said, Contains(EndsWith(" off command: the connection broke")));
}

TEST_F(ScriptRunTest, ASilentClientIsDroppedAndComesBack) {
    load();
    EXPECT_EQ(runs("connect\nping off\nwait 35000\nping on\nconnect\nmode\nquit\n"), 0);
    EXPECT_THAT(said, Contains(EndsWith(" off command: the station closed the connection")));
    EXPECT_EQ(calls.tried(7060), 2);
}

TEST_F(ScriptRunTest, HangUpClosesOneOrAll) {
    load();
    begin("connect\nhangup video\nwait 1000\nhangup\nwait 1000\n");
    run(2000);
    EXPECT_EQ(link.state(RemoteChannel::video), ChannelState::off);
    EXPECT_TRUE(link.connected(RemoteChannel::command));
    run(1000);
    EXPECT_FALSE(link.connected(RemoteChannel::command));
    EXPECT_EQ(gui.ConnectionList.count(), 0U);
}

TEST_F(ScriptRunTest, QuitEndsItAndWhatStandsBehindIsNotDone) {
    load();
    EXPECT_EQ(runs("connect\nquit\nmode\n"), 0);
    EXPECT_FALSE(values.requestIdle);
    EXPECT_THAT(said, Not(Contains(HasSubstr("mode"))));
}

TEST_F(ScriptRunTest, AnInterruptDoesNotHoldAndLetsTheRobotGo) {
    load();
    begin("connect\ndrive 5000 4000 10000 2000 2000 3400 1\nwait 60000\n");
    run(3000);
    script->interrupt();
    run(500);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(complaints, ElementsAre("line 3: wait 60000: interrupted"));
    EXPECT_EQ(values.gasLevel, 10000);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(ScriptRunTest, LinesAreToldWithTheirTime) {
    load();
    EXPECT_EQ(runs("wait 250\n# no line\nping off\n"), 0);
    EXPECT_THAT(said, ElementsAre("0.000 line 1: wait 250", "0.250 line 3: ping off"));
}

TEST_F(ScriptRunTest, ARobotThatCannotBeLetGoIsComplainedOf) {
    load();
    EXPECT_EQ(runs("connect\ndrive 5000 4000 10000 2000 2000 3400 1\nwait 1000\nhangup\n"), 0);
    EXPECT_TRUE(values.manualPanelActive);
    EXPECT_THAT(complaints, ElementsAre(StartsWith("the robot was not let go, since there is no command")));
}

TEST_F(ScriptRunTest, AHangUpAfterLettingGoIsNotComplainedOf) {
    load();
    EXPECT_EQ(runs("connect\ndrive 5000 4000 10000 2000 2000 3400 1\nwait 1000\nclos\nhangup\n"), 0);
    EXPECT_THAT(complaints, IsEmpty());
}

TEST_F(ScriptRunTest, WhatAStationSaysIsToldWithoutControlCharacters) {
    load();
    begin("connect\nwait 3000\n");
    run(2500);
    gui.txtRobotCurrX.setText("\x1B[2J");
    modeBecomes("JOY");
    run(100);
    EXPECT_THAT(said, Contains(EndsWith(" report \\x1B[2J,0,0,,JOY,0")));
}

TEST_F(ScriptRunTest, AStationThatTalksWithoutEndIsKeptInBounds) {
    load();
    begin("connect\nping off\nwait 20000\nexpect report ,1,0,,, within 0\n");
    run(2000);
    link.onReport.tell({"0", "1", "0", "", "", "0"});
    for (std::size_t i = 0; i < ScriptRun::kKeptReports; ++i) link.onReport.tell({});
    run(30'000);
    EXPECT_EQ(status, 1) << "the oldest has been forgotten";
}

}  // namespace
}  // namespace quorrin
