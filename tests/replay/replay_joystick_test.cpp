// Joystick lines of a script: the stick is there from the start, and a line that differs is one change.
#include <gmock/gmock.h>

#include "support/replay_script.h"

namespace quorrin {
namespace {

std::string stick(int t, const std::string& members) {
    return "{\"t\": " + std::to_string(t) + ", \"joystick\": {" + members + "}}\n";
}

std::string buttons(int t, const std::string& down) {
    return stick(t, R"("x": 5000, "y": 5000, "slider": 10000, "pov": -1, "buttons": [)" + down + "]");
}

std::string watch(int t, const std::string& names) {
    return "{\"t\": " + std::to_string(t) + ", \"watch\": [" + names + "], \"every\": 60000}\n";
}

// What the watched names are at the time of the last line.
std::string valuesAfter(const std::string& script, int t, const std::string& names) {
    const ScriptOutcome outcome = runScript(script + watch(t, names));
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
    const auto lines = outcome.linesWith("\"state\"");
    return lines.empty() ? "" : lines.back().substr(lines.back().find("\"state\"") + 9);
}

void expectRefused(const std::string& line, const std::string& reason) {
    const ScriptOutcome outcome = runScript("{\"t\": 1000, \"answer\": \"no\"}\n" + line);
    EXPECT_EQ(outcome.end, ReplayEnd::badScript) << line;
    EXPECT_EQ(outcome.error.line, 2) << line;
    EXPECT_EQ(outcome.error.reason, reason);
}

TEST(ReplayJoystick, TakesOverAndCommandsTheLevels) {
    EXPECT_EQ(
        valuesAfter(buttons(1100, "0, 6") +
                        stick(1200, R"("x": 4000, "y": 6001, "slider": 10, "pov": -1, "buttons": [])"),
                    1300, R"("joystickActive", "steeringLevel", "joystickY", "gasLevel", "brakeLevel")"),
        R"({"joystickActive": true, "steeringLevel": 4000, "joystickY": 6001, "gasLevel": 10, )"
        R"("brakeLevel": 10000}})");
}

TEST(ReplayJoystick, ALineLikeTheLastOneIsNoEvent) {
    EXPECT_EQ(valuesAfter(buttons(1100, "2") + buttons(1200, "2"), 1300, "\"caEnabled\""),
              "{\"caEnabled\": false}}");
    EXPECT_EQ(valuesAfter(buttons(1100, "2") + buttons(1200, "2, 4"), 1300, "\"caEnabled\""),
              "{\"caEnabled\": true}}");
}

TEST(ReplayJoystick, TheStickIsThereFromTheStartIfAnyLineMovesIt) {
    const ScriptOutcome outcome =
        runScript(watch(1000, "\"joystickEventHandle\", \"lButtons\", \"AxisPresent\"") + buttons(5000, "0"));
    EXPECT_EQ(
        outcome.linesWith("\"state\""),
        std::vector<std::string>{"{\"t\": 1000, \"state\": {\"joystickEventHandle\": 1, \"lButtons\": 12, "
                                 "\"AxisPresent\": [true, true, false, false, false, false, true, "
                                 "true]}}"});
}

TEST(ReplayJoystick, WithoutSuchALineThereIsNoStick) {
    EXPECT_EQ(valuesAfter("# \"joystick\" stands in a comment only\n", 1000,
                          "\"joystickEventHandle\", \"lButtons\", \"joystickRunning\""),
              "{\"joystickEventHandle\": 0, \"lButtons\": 0, \"joystickRunning\": true}}");
}

TEST(ReplayJoystick, TheNumberOfButtonsStandsInTheLineOrBesideIt) {
    const std::string state = R"("x": 5000, "y": 5000, "slider": 10000, "pov": -1, "buttons": [0, 6])";
    const std::string names = "\"lButtons\", \"joystickActive\"";
    EXPECT_EQ(valuesAfter(stick(1100, state + ", \"lButtons\": 6"), 1200, names),
              "{\"lButtons\": 6, \"joystickActive\": false}}");
    EXPECT_EQ(valuesAfter("{\"t\": 1100, \"joystick\": {" + state + "}, \"lButtons\": 7}\n", 1200, names),
              "{\"lButtons\": 7, \"joystickActive\": true}}");
}

TEST(ReplayJoystick, TheNumberOfButtonsMayComeInALaterLine) {
    EXPECT_EQ(
        valuesAfter(buttons(1100, "0") + stick(1200, R"("x": 5000, "y": 5000, "slider": 10000, "pov": -1, )"
                                                     R"("buttons": [0, 6], "lButtons": 6)"),
                    1300, "\"lButtons\", \"joystickActive\""),
        "{\"lButtons\": 6, \"joystickActive\": false}}");
}

TEST(ReplayJoystick, AStickMayHaveNoButtonOrMoreThanAStateHasRoomFor) {
    const std::string state = R"("x": 5000, "y": 5000, "slider": 10000, "pov": -1, "buttons": [0, 6])";
    const std::string names = "\"lButtons\", \"joystickRunning\", \"joystickActive\"";
    EXPECT_EQ(valuesAfter(stick(1100, state + ", \"lButtons\": 0"), 1200, names),
              "{\"lButtons\": 0, \"joystickRunning\": true, \"joystickActive\": false}}");
    EXPECT_EQ(valuesAfter(stick(1100, state + ", \"lButtons\": 40"), 1200, names),
              "{\"lButtons\": 40, \"joystickRunning\": true, \"joystickActive\": true}}");
}

TEST(ReplayJoystick, AnotherNumberOfButtonsIsRefused) {
    const std::string rest = R"("x": 5000, "y": 5000, "slider": 10000, "pov": -1, "buttons": [])";
    const ScriptOutcome outcome =
        runScript(stick(1100, rest + ", \"lButtons\": 6") + stick(1200, rest + ", \"lButtons\": 8"));
    EXPECT_EQ(outcome.end, ReplayEnd::badScript);
    EXPECT_EQ(outcome.error.line, 2);
    EXPECT_EQ(outcome.error.reason, "the stick has 6 buttons");
}

TEST(ReplayJoystick, AStateBeforeTheLoadIsTheOneThatTheLoadFinds) {
    EXPECT_EQ(valuesAfter("{\"t\": 0, \"login\": true}\n" + buttons(10, "2") +
                              "{\"t\": 50, \"click\": \"frmLogin.cmdOK\"}\n",
                          1200, "\"caEnabled\""),
              "{\"caEnabled\": false}}");
}

TEST(ReplayJoystick, ALineInABlockingWaitIsDeliveredAfterIt) {
    EXPECT_EQ(valuesAfter(buttons(500, "3"), 1100, "\"mouthCmd\""), "{\"mouthCmd\": 2750}}");
}

TEST(ReplayJoystick, TakesOverFromThePanel) {
    EXPECT_EQ(valuesAfter("{\"t\": 1100, \"click\": \"cmdShowControlPanel\"}\n" + buttons(1200, "0, 6"), 1300,
                          "\"manualPanelActive\", \"cmdShowControlPanel\""),
              "{\"manualPanelActive\": false, \"cmdShowControlPanel\": \"Show Control\"}}");
}

TEST(ReplayJoystick, TheWholeStateMustBeThere) {
    expectRefused(stick(1100, R"("y": 5000, "slider": 10000, "pov": -1, "buttons": [])"),
                  "key \"x\" is missing");
    expectRefused(stick(1100, R"("x": 5000, "slider": 10000, "pov": -1, "buttons": [])"),
                  "key \"y\" is missing");
    expectRefused(stick(1100, R"("x": 5000, "y": 5000, "pov": -1, "buttons": [])"),
                  "key \"slider\" is missing");
    expectRefused(stick(1100, R"("x": 5000, "y": 5000, "slider": 10000, "buttons": [])"),
                  "key \"pov\" is missing");
    expectRefused(stick(1100, R"("x": 5000, "y": 5000, "slider": 10000, "pov": -1)"),
                  "key \"buttons\" is missing");
}

TEST(ReplayJoystick, ValuesThatNoStickHasAreRefused) {
    const auto line = [](const std::string& x, const std::string& pov, const std::string& down,
                         const std::string& more) {
        return stick(1100, "\"x\": " + x + ", \"y\": 0, \"slider\": 0, \"pov\": " + pov +
                               ", \"buttons\": " + down + more);
    };
    expectRefused(line("-1", "0", "[]", ""), "\"x\" must be from 0 to 10000");
    expectRefused(line("10001", "0", "[]", ""), "\"x\" must be from 0 to 10000");
    expectRefused(line("\"0\"", "0", "[]", ""), "\"x\" must be a whole number");
    expectRefused(line("0.5", "0", "[]", ""), "\"x\" must be a whole number");
    expectRefused(line("0", "-2", "[]", ""), "\"pov\" must be from -1 to 35999");
    expectRefused(line("0", "36000", "[]", ""), "\"pov\" must be from -1 to 35999");
    const std::string numbers = "\"buttons\" must be a list of whole numbers from 0 to 31";
    expectRefused(line("0", "0", "[32]", ""), numbers);
    expectRefused(line("0", "0", "[-1]", ""), numbers);
    expectRefused(line("0", "0", "6", ""), numbers);
    expectRefused(line("0", "0", "[\"6\"]", ""), numbers);
    expectRefused(line("0", "0", "[]", ", \"lButtons\": -1"), "\"lButtons\" must be from 0 to 32767");
    expectRefused(line("0", "0", "[]", ", \"lButtons\": 32768"), "\"lButtons\" must be from 0 to 32767");
    expectRefused(line("0", "0", "[]", ", \"z\": 1"), "unknown key \"z\"");
    expectRefused(line("0", "0", "[]", ", \"x\": 1"), "has the key \"x\" twice");
    expectRefused("{\"t\": 1100, \"joystick\": true}\n", "\"joystick\" must be an object");
}

TEST(ReplayJoystick, LookingThroughTheScriptFirstLeavesNothingOut) {
    const ScriptOutcome outcome =
        runScript(buttons(1100, "0, 6") + "{\"t\": 1200, \"click\": \"cmdExit\"}\n");
    EXPECT_EQ(outcome.lines().back(), "{\"t\": 2200, \"ended\": true}");
}

}  // namespace
}  // namespace quorrin
