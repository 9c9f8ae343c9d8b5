// Keys of the control panel in a script and in a recording.
#include <gmock/gmock.h>

#include "platform/virtual/virtual_clock.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string kOpen = "{\"t\": 1100, \"click\": \"cmdShowControlPanel\"}\n";

// What `names` hold at the end of a script in which the panel is open.
std::string after(const std::string& names, const std::string& script) {
    const ScriptOutcome outcome =
        runScript(kOpen + script + "{\"t\": 9000, \"watch\": [" + names + "], \"every\": 100000}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
    const auto states = outcome.linesWith("\"state\": ");
    return states.empty() ? "" : states.back().substr(states.back().find("\"state\": ") + 9);
}

TEST(ReplayPanel, AKeyGoesToTheControlPanel) {
    EXPECT_EQ(
        after(
            "\"gasLevel\", \"frmControlPanel.scrGas\", \"frmControlPanel.slbGasLevel\"",
            "{\"t\": 1200, \"keyDown\": 38}\n{\"t\": 1230, \"keyDown\": 38}\n{\"t\": 1250, \"keyUp\": 38}\n"),
        "{\"gasLevel\": 9000, \"frmControlPanel.scrGas\": 9000, \"frmControlPanel.slbGasLevel\": \"9000\"}}");
}

TEST(ReplayPanel, ASteeringKeySteersUntilItComesUp) {
    const std::string watch = "{\"t\": 1150, \"watch\": [\"steeringLevel\"], \"every\": 100}\n";
    const ScriptOutcome outcome = runScript(kOpen + watch +
                                            "{\"t\": 1200, \"keyDown\": 37}\n"
                                            "{\"t\": 1300, \"keyUp\": 37}\n"
                                            "{\"t\": 1400, \"answer\": \"no\"}\n");
    EXPECT_THAT(outcome.linesWith("state"),
                ElementsAre("{\"t\": 1150, \"state\": {\"steeringLevel\": 5000}}",
                            "{\"t\": 1250, \"state\": {\"steeringLevel\": 4500}}",
                            "{\"t\": 1350, \"state\": {\"steeringLevel\": 5000}}"));
}

TEST(ReplayPanel, ATurnButtonIsHeldByPressAndRelease) {
    EXPECT_EQ(after("\"steeringLevel\"", "{\"t\": 1200, \"press\": \"frmControlPanel.cmdTurnRight\"}\n"),
              "{\"steeringLevel\": 5500}}");
    EXPECT_EQ(after("\"steeringLevel\"",
                    "{\"t\": 1200, \"press\": \"frmControlPanel.cmdTurnRight\"}\n"
                    "{\"t\": 1300, \"release\": \"frmControlPanel.cmdTurnRight\"}\n"),
              "{\"steeringLevel\": 5000}}");
}

TEST(ReplayPanel, AKeyWithoutAPanelThatShowsDoesNothing) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1200, \"keyDown\": 38}\n{\"t\": 1300, \"keyUp\": 37}\n"
        "{\"t\": 1400, \"watch\": [\"gasLevel\", \"steeringLevel\"], \"every\": 1000}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_THAT(outcome.output, HasSubstr("{\"gasLevel\": 0, \"steeringLevel\": 0}"));
}

TEST(ReplayPanel, AKeyIsANumberOfOneByte) {
    for (const std::string key : {"-1", "256"}) {
        const ScriptOutcome outcome = runScript(kOpen + "{\"t\": 1200, \"keyDown\": " + key + "}\n");
        EXPECT_EQ(outcome.end, ReplayEnd::badScript);
        EXPECT_THAT(outcome.error.reason, HasSubstr("a key is a number from 0 to 255"));
    }
}

TEST(ReplayPanel, ActivatingThePanelTakesTheGasAway) {
    EXPECT_EQ(after("\"gasLevel\", \"frmControlPanel.scrGas\"",
                    "{\"t\": 1200, \"keyDown\": 38}\n{\"t\": 1300, \"activate\": \"frmControlPanel\"}\n"),
              "{\"gasLevel\": 10000, \"frmControlPanel.scrGas\": 10000}}");
}

TEST(ReplayPanel, ThousandsOfKeysAtOneInstantEndInOrder) {
    std::string script = kOpen;
    for (int i = 0; i < 5000; ++i) script += "{\"t\": 1200, \"keyDown\": 38}\n";
    const ScriptOutcome outcome =
        runScript(script + "{\"t\": 1300, \"watch\": [\"gasLevel\"], \"every\": 1000}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_THAT(outcome.output, HasSubstr("{\"gasLevel\": 0}"));
}

TEST(ReplayPanel, TheAddressOnTheAboutFormCanBeClicked) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1100, \"click\": \"Toolbar1.About\"}\n{\"t\": 1200, \"click\": \"frmAbout.lblWWW\"}\n"
        "{\"t\": 1300, \"watch\": [\"aboutOpen\", \"frmAbout.lblWWW\"], \"every\": 1000}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
    EXPECT_THAT(outcome.output,
                HasSubstr("{\"aboutOpen\": true, \"frmAbout.lblWWW\": \"https://quorrin.example/\"}"));
}

}  // namespace
}  // namespace quorrin
