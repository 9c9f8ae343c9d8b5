// What a script lets the operator do.
#include <gmock/gmock.h>

#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// The values of the watch at the end of a script, the last line of which is at `t`.
std::string valuesAt(int t, const std::string& names, const std::string& script) {
    const ScriptOutcome outcome = runScript(script + "{\"t\": " + std::to_string(t) + ", \"watch\": [" +
                                            names + "], \"every\": 100000}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
    const auto states = outcome.linesWith("\"state\": {");
    return states.empty() ? "" : states.back().substr(states.back().find("\"state\": ") + 9);
}

TEST(ReplayOperator, ASetTextRunsTheChangeHandlerIfItDiffers) {
    // txtRobotStatus counts its changes.
    EXPECT_EQ(valuesAt(1200, "\"txtChangeCount\"",
                       "{\"t\": 1100, \"set\": \"txtRobotStatus\", \"to\": \"a\"}\n"
                       "{\"t\": 1110, \"set\": \"txtRobotStatus\", \"to\": \"a\"}\n"
                       "{\"t\": 1120, \"set\": \"txtRobotStatus\", \"to\": \"b\"}\n"),
              "{\"txtChangeCount\": \"2\"}}");
}

TEST(ReplayOperator, ASetTextMayBeOneThatAWindowWouldNotLetAPersonFinish) {
    EXPECT_EQ(valuesAt(1200, "\"txtTh1\", \"densityThreshold\"",
                       "{\"t\": 1100, \"set\": \"txtTh1\", \"to\": \"many\"}\n"),
              "{\"txtTh1\": \"many\", \"densityThreshold\": \"many\"}}");
}

TEST(ReplayOperator, ABoxTakesAWholeNumberAsItsDigits) {
    EXPECT_EQ(valuesAt(1200, "\"txtTh1\", \"densityThreshold\"",
                       "{\"t\": 1100, \"set\": \"txtTh1\", \"to\": 41}\n"),
              "{\"txtTh1\": \"41\", \"densityThreshold\": 41}}");
}

TEST(ReplayOperator, ADisabledControlDoesNothing) {
    EXPECT_EQ(valuesAt(1200, "\"frmLogin.txtRobotPort\"",
                       "{\"t\": 0, \"login\": true}\n"
                       "{\"t\": 50, \"set\": \"frmLogin.txtRobotPort\", \"to\": \"0\"}\n"
                       "{\"t\": 150, \"click\": \"frmLogin.cmdOK\"}\n"),
              "{\"frmLogin.txtRobotPort\": \"0\"}}");
}

TEST(ReplayOperator, AControlOfAFormThatIsNotShownDoesNothing) {
    EXPECT_EQ(valuesAt(1200, "\"frmLogin.txtRobotPort\", \"frmLogin.txt_ip(0)\"",
                       "{\"t\": 1100, \"set\": \"frmLogin.txtRobotPort\", \"to\": \"5\"}\n"
                       "{\"t\": 1100, \"keyDown\": 13, \"on\": \"frmLogin.txt_ip(0)\"}\n"
                       "{\"t\": 1100, \"focus\": \"frmLogin.txt_ip(0)\"}\n"
                       "{\"t\": 1100, \"click\": \"frmLogin.cmdOK\"}\n"),
              "{\"frmLogin.txtRobotPort\": \"\", \"frmLogin.txt_ip(0)\": \"\"}}");
    EXPECT_THAT(runScript("{\"t\": 0, \"login\": true}\n{\"t\": 50, \"click\": \"cmdStart\"}\n").output,
                IsEmpty());
}

TEST(ReplayOperator, FocusLeavesTheBoxThatHadItFirst) {
    // Leaving an address box pads it.
    EXPECT_EQ(valuesAt(120, "\"frmLogin.txt_ip(0)\"",
                       "{\"t\": 0, \"login\": true}\n"
                       "{\"t\": 50, \"set\": \"frmLogin.txt_ip(0)\", \"to\": \"7\"}\n"
                       "{\"t\": 60, \"focus\": \"frmLogin.txt_ip(2)\"}\n"),
              "{\"frmLogin.txt_ip(0)\": \"  7\"}}");
}

TEST(ReplayOperator, AKeyPressReachesTheBoxThatIsNamed) {
    // Enter moves on from box 0, which is left and padded by that.
    EXPECT_EQ(valuesAt(120, "\"frmLogin.txt_ip(0)\"",
                       "{\"t\": 0, \"login\": true}\n"
                       "{\"t\": 50, \"set\": \"frmLogin.txt_ip(0)\", \"to\": \"7\"}\n"
                       "{\"t\": 60, \"keyDown\": 13, \"on\": \"frmLogin.txt_ip(0)\"}\n"
                       "{\"t\": 61, \"keyUp\": 13, \"on\": \"frmLogin.txt_ip(0)\"}\n"),
              "{\"frmLogin.txt_ip(0)\": \"  7\"}}");
}

TEST(ReplayOperator, SlidersChecksAndDropDownsTakeTheirValues) {
    EXPECT_EQ(valuesAt(1200, "\"sldImageQuality\", \"chkRemote\", \"cobStoreDay\"",
                       "{\"t\": 1100, \"set\": \"sldImageQuality\", \"to\": 33}\n"
                       "{\"t\": 1100, \"set\": \"chkRemote\", \"to\": false}\n"
                       "{\"t\": 1100, \"set\": \"cobStoreDay\", \"to\": \"5\"}\n"),
              "{\"sldImageQuality\": 33, \"chkRemote\": 0, \"cobStoreDay\": \"5\"}}");
    EXPECT_EQ(valuesAt(1200, "\"sldImageQuality\", \"chkRemote\", \"cobStoreDay\"",
                       "{\"t\": 1100, \"set\": \"sldImageQuality\", \"to\": \"34\"}\n"
                       "{\"t\": 1100, \"click\": \"chkRemote\"}\n"
                       "{\"t\": 1100, \"set\": \"cobStoreDay\", \"to\": 4}\n"),
              "{\"sldImageQuality\": 34, \"chkRemote\": 0, \"cobStoreDay\": \"4\"}}");
}

TEST(ReplayOperator, AFramesPropertiesStayUntilTheyAreNamedAgain) {
    EXPECT_EQ(valuesAt(1200, "\"encoderLeft\", \"encoderRight\"",
                       "{\"t\": 1100, \"frame\": \"MotorFrame\", \"EncoderPositionLeft\": 5, "
                       "\"EncoderPositionRight\": 6}\n"
                       "{\"t\": 1110, \"frame\": \"MotorFrame\", \"EncoderPositionRight\": 7}\n"),
              "{\"encoderLeft\": 5, \"encoderRight\": 7}}");
}

TEST(ReplayOperator, ClosingTheMainWindowUnloadsAndShutsDown) {
    const ScriptOutcome outcome =
        runScript("{\"t\": 1500, \"unload\": true}\n{\"t\": 9000, \"click\": \"x\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_EQ(outcome.lines().back(), "{\"t\": 2500, \"ended\": true}");
}

TEST(ReplayOperator, TheControlPanelShowsAndCloses) {
    EXPECT_EQ(valuesAt(1200, "\"manualPanelActive\"", "{\"t\": 1100, \"click\": \"cmdShowControlPanel\"}\n"),
              "{\"manualPanelActive\": true}}");
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1100, \"click\": \"cmdShowControlPanel\"}\n"
        "{\"t\": 1200, \"activate\": \"frmControlPanel\"}\n"
        "{\"t\": 1300, \"unload\": \"frmControlPanel\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
}

}  // namespace
}  // namespace quorrin
