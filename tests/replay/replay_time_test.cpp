// Time and order of a replay: what comes before what, and when a run ends.
#include <gmock/gmock.h>

#include <algorithm>

#include "support/load_transcript.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string watch(int t, const std::string& name, int every) {
    return "{\"t\": " + std::to_string(t) + ", \"watch\": [\"" + name +
           "\"], \"every\": " + std::to_string(every) + "}\n";
}

std::string set(int t, const std::string& control, const std::string& to) {
    return "{\"t\": " + std::to_string(t) + ", \"set\": \"" + control + "\", \"to\": \"" + to + "\"}\n";
}

std::string state(int t, const std::string& name, const std::string& value) {
    return "{\"t\": " + std::to_string(t) + ", \"state\": {\"" + name + "\": " + value + "}}";
}

std::string click(int t, const std::string& control) {
    return "{\"t\": " + std::to_string(t) + ", \"click\": \"" + control + "\"}\n";
}

// Brings the station to "wondering": started, with a motion link that is up.
std::string wander(int untilMs) {
    std::string script = click(1100, "cmdStart");
    for (int t = 1150; t <= untilMs; t += 100)
        script += "{\"t\": " + std::to_string(t) + ", \"frame\": \"SensorFrame\"}\n";
    return script;
}

TEST(ReplayTime, LinesThatFellDueInTheLoadComeAfterItInFileOrder) {
    const ScriptOutcome outcome = runScript(set(10, "txtTh1", "41") + watch(20, "txtTh1", 1000) +
                                            set(500, "txtTh1", "42") + set(1000, "txtTh2", "9"));
    EXPECT_THAT(outcome.linesWith("state"), ElementsAre(state(1000, "txtTh1", "\"42\"")));
}

TEST(ReplayTime, AScriptLineComesBeforeTheTimersOfItsTime) {
    // cmdStart at 1100 switches the tick on, and the tick due at 1100 already starts the gateway.
    const ScriptOutcome outcome = runScript(click(1100, "cmdStart"));
    EXPECT_THAT(outcome.lines().back(), HasSubstr("WritePowerByte"));
    EXPECT_THAT(outcome.linesWith("QuorrinGatewaymot"),
                ElementsAre("{\"t\": 1100, \"start\": \"QuorrinGatewaymot\"}"));
}

TEST(ReplayTime, TheRunEndsAtTheLastLineAfterEverythingDueThen) {
    const ScriptOutcome outcome = runScript(watch(1000, "txtTh1", 100) + set(1300, "txtTh1", "41"));
    EXPECT_THAT(outcome.linesWith("state"),
                ElementsAre(state(1000, "txtTh1", "\"40\""), state(1100, "txtTh1", "\"40\""),
                            state(1200, "txtTh1", "\"40\""), state(1300, "txtTh1", "\"41\"")));
}

TEST(ReplayTime, WatchesPrintLastAmongWhatIsDueAtTheirTime) {
    const ScriptOutcome outcome =
        runScript(watch(1050, "txtTh1", 50) + set(1100, "txtTh1", "41") + set(1100, "txtTh1", "42"));
    EXPECT_THAT(outcome.lines().back(), state(1100, "txtTh1", "\"42\""));
    EXPECT_THAT(outcome.lines()[outcome.lines().size() - 2], HasSubstr("WritePowerByte"));
}

TEST(ReplayTime, AWatchPrintsAtOnceAndThenOnItsGrid) {
    const ScriptOutcome outcome = runScript(watch(1234, "txtTh1", 300) + set(2000, "txtTh2", "9"));
    EXPECT_THAT(outcome.linesWith("state"),
                ElementsAre(state(1234, "txtTh1", "\"40\""), state(1534, "txtTh1", "\"40\""),
                            state(1834, "txtTh1", "\"40\"")));
}

TEST(ReplayTime, AWatchInTheLastLinePrintsThoughTheLineComesLate) {
    // The load ends at 1000.
    EXPECT_THAT(runScript(watch(20, "txtTh1", 100)).linesWith("state"),
                ElementsAre(state(1000, "txtTh1", "\"40\"")));
    // The tick due at 6100 blocks until 6600.
    const std::string script = wander(6000) + click(6050, "cmdChEn") + watch(6300, "txtRobotStatus", 100);
    EXPECT_THAT(runScript(script).linesWith("state"), ElementsAre(state(6600, "txtRobotStatus", "\"IDLE\"")));
}

TEST(ReplayTime, ALaterWatchReplacesTheFirst) {
    const ScriptOutcome outcome =
        runScript(watch(1000, "txtTh1", 100) + watch(1150, "txtTh2", 1000) + set(1400, "txtTh3", "9"));
    EXPECT_THAT(outcome.linesWith("state"),
                ElementsAre(state(1000, "txtTh1", "\"40\""), state(1100, "txtTh1", "\"40\""),
                            state(1150, "txtTh2", "\"100\"")));
}

TEST(ReplayTime, AWatchThatFallsDueInABlockingWaitPrintsOnceAfterIt) {
    // Leaving "wondering" for "IDLE" blocks the tick half a second.
    const std::string script =
        wander(6000) + watch(6000, "txtRobotStatus", 50) + click(6050, "cmdChEn") + set(6700, "txtTh1", "41");
    const ScriptOutcome outcome = runScript(script);
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_THAT(
        outcome.linesWith("state"),
        ElementsAre(state(6000, "txtRobotStatus", "\"wondering\""),
                    state(6050, "txtRobotStatus", "\"wondering\""), state(6600, "txtRobotStatus", "\"IDLE\""),
                    state(6650, "txtRobotStatus", "\"IDLE\""), state(6700, "txtRobotStatus", "\"IDLE\"")));
}

TEST(ReplayTime, WhatFellDueInABlockingWaitIsDeliveredAfterItAtTheClocksTime) {
    const std::string script =
        wander(6000) + click(6050, "cmdChEn") + click(6300, "Stoprobot") + set(6700, "txtTh1", "41");
    const ScriptOutcome outcome = runScript(script);
    const auto stops = outcome.linesWith("\"t\": 6600, \"link\": \"myRobot\", \"op\": \"SuspendDrive\"");
    EXPECT_THAT(outcome.linesWith("\"t\": 6300"), IsEmpty());
    EXPECT_FALSE(stops.empty());
}

TEST(ReplayTime, APeriodicTimersMissedPeriodsCollapseIntoOneLateEvent) {
    // The tick due at 6100 blocks until 6600. Of those due meanwhile one comes late, and the next at 6700,
    // not before: it is the first that sees the key pressed at 6610.
    const std::string script =
        wander(6000) + click(6050, "cmdChEn") + click(6610, "cmdChEn") + set(7000, "txtTh1", "41");
    const ScriptOutcome outcome = runScript(script);
    EXPECT_THAT(outcome.linesWith("QuorrinGatewaymot"),
                ElementsAre("{\"t\": 1100, \"start\": \"QuorrinGatewaymot\"}",
                            "{\"t\": 6700, \"start\": \"QuorrinGatewaymot\"}"));
}

TEST(ReplayTime, AYieldDeliversTheLinesThatAreDueNested) {
    // The way out blocks a second; then each gateway that it closes is given time to go. No watch prints
    // there.
    const ScriptOutcome outcome = runScript(
        click(1160, "cmdStart") + click(3000, "cmdExit") + "{\"t\": 3100, \"frame\": \"ImageFrame\"}\n" +
        watch(3150, "txtTh1", 10) + "{\"t\": 4001, \"frame\": \"ImageFrame\"}\n");
    const auto lines = outcome.lines();
    const auto begin =
        std::find(lines.begin(), lines.end(),
                  "{\"t\": 3000, \"link\": \"robotTI\", \"op\": \"StopSoundPlayback\", \"args\": []}");
    // The six listeners go in between.
    EXPECT_THAT(std::vector<std::string>(begin + 7, lines.end()),
                ElementsAre("{\"t\": 4000, \"close\": \"Quorrin Gateway_MotionControl\", \"found\": true}",
                            "{\"t\": 4000, \"link\": \"robotTI\", \"op\": \"RequestImage\", \"args\": []}",
                            "{\"t\": 4000, \"close\": \"Quorrin Gateway_Multimedia\", \"found\": true}",
                            "{\"t\": 4000, \"ended\": true}"));
}

TEST(ReplayTime, TheDateIsTheWallClockAtZero) {
    ScriptRunner runner;
    runner.date = {2024, 2, 28, 23, 59, 59};
    runner.files.createFolder("/app/catchdata/2024-02-29");
    // The load looks at the date at its end, a second after zero: by then it is the leap day, one of the
    // choices.
    const ScriptOutcome outcome =
        runner.run(set(1000, "cobAvailDate", "2024-02-29") + watch(1000, "cobAvailDate", 1000));
    EXPECT_THAT(outcome.linesWith("state"), ElementsAre(state(1000, "cobAvailDate", "\"2024-02-29\"")));
}

}  // namespace
}  // namespace quorrin
