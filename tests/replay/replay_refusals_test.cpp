// Scripts that cannot be used: the line is named, the lines before it have run, nothing past it is.
#include <gmock/gmock.h>

#include "support/load_transcript.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kPower =
    "{\"t\": 1100, \"link\": \"robotTI\", \"op\": \"WritePowerByte\", \"args\": [63]}\n";

void expectRefused(const std::string& script, std::int64_t line, const std::string& reason) {
    const ScriptOutcome outcome = runScript(script);
    EXPECT_EQ(outcome.end, ReplayEnd::badScript) << script;
    EXPECT_EQ(outcome.error.line, line) << script;
    EXPECT_EQ(outcome.error.reason, reason) << script;
}

TEST(ReplayRefusals, NameTheLineAndTheReason) {
    const std::string good = "# comment\n{\"t\": 1050, \"click\": \"chkGPS\"}\n";
    expectRefused(good + "{\"t\": 1100, \"click\": \"cmdNope\"}\n", 3, "unknown control \"cmdNope\"");
    expectRefused(good + "{\"t\": 1100, \"click\": \"frmLogin.cmdNope\"}\n", 3,
                  "unknown control \"frmLogin.cmdNope\"");
    expectRefused(good + "{\"t\": 1100, \"set\": \"frmNope.a\", \"to\": \"1\"}\n", 3,
                  "unknown control \"frmNope.a\"");
    expectRefused(good + "{\"t\": 1100, \"focus\": \"x\"}\n", 3, "unknown control \"x\"");
    expectRefused(good + "{\"t\": 1100, \"press\": \"x\"}\n", 3, "unknown control \"x\"");
    expectRefused(good + "{\"t\": 1100, \"keyDown\": 8, \"on\": \"x\"}\n", 3, "unknown control \"x\"");
    expectRefused(good + "{\"t\": 1100, \"unload\": \"frmX\"}\n", 3, "unknown form \"frmX\"");
    expectRefused(good + "{\"t\": 1100, \"activate\": \"frmX\"}\n", 3, "unknown form \"frmX\"");
    expectRefused(good + "{\"t\": 1100, \"watch\": [\"robotX\", \"robotQ\"], \"every\": 5}\n", 3,
                  "unknown field or control \"robotQ\"");
    expectRefused(good + "{\"t\": 1100, \"watch\": [\"robotX\", \"robotX\"], \"every\": 5}\n", 3,
                  "watches \"robotX\" twice");
    expectRefused(good + "{\"t\": 1049, \"click\": \"chkGPS\"}\n", 3, "\"t\" goes back from 1050 to 1049");
    expectRefused(good + "{\"t\": 1100, \"login\": true}\n", 3,
                  "\"login\" stands in the first line, at 0, or nowhere");
    expectRefused("{\"t\": 5, \"login\": true}\n", 1, "\"login\" stands in the first line, at 0, or nowhere");
    expectRefused("\n\nrubbish\n", 3,
                  "no valid JSON: syntax error while parsing value - invalid literal; last read: 'r'");
    expectRefused(good + "{\"t\": 1100, \"choose\": \"a.wav\"}\n", 3, "\"choose\" is not built yet");
}

TEST(ReplayRefusals, AKindOfControlThatDoesNotTakeTheActionIsNamed) {
    expectRefused("{\"t\": 1100, \"click\": \"lblCom\"}\n", 1, "\"lblCom\" cannot be clicked");
    expectRefused("{\"t\": 1100, \"press\": \"txtTh1\"}\n", 1, "\"txtTh1\" cannot be pressed");
    expectRefused("{\"t\": 1100, \"set\": \"lblCom\", \"to\": \"1\"}\n", 1, "\"lblCom\" cannot be set");
    expectRefused("{\"t\": 1100, \"set\": \"txtTh1\", \"to\": true}\n", 1, "\"txtTh1\" takes a text");
    expectRefused("{\"t\": 1100, \"set\": \"sldImageQuality\", \"to\": \"much\"}\n", 1,
                  "\"sldImageQuality\" takes a whole number");
    expectRefused("{\"t\": 1100, \"set\": \"chkGPS\", \"to\": 2}\n", 1, "\"chkGPS\" takes true or false");
    expectRefused("{\"t\": 1100, \"keyDown\": 8, \"on\": \"cmdStart\"}\n", 1, "\"cmdStart\" takes no keys");
    expectRefused("{\"t\": 1100, \"keyDown\": 256, \"on\": \"txtTh1\"}\n", 1,
                  "a key is a number from 0 to 255");
}

TEST(ReplayRefusals, AFileThatCannotBeReadIsNamed) {
    expectRefused("{\"t\": 1100, \"frame\": \"ImageFrame\", \"bitmap\": \"gone.bmp\"}\n", 1,
                  "file \"gone.bmp\" cannot be read");
}

TEST(ReplayRefusals, FilesOfTheScriptBeginAtItsFolder) {
    ScriptRunner runner;
    runner.files.put("/scripts/near.bmp", "BM");
    runner.files.put("/far/away.pcm", "12");
    const ScriptOutcome outcome = runner.run(
        "{\"t\": 1100, \"frame\": \"ImageFrame\", \"bitmap\": \"near.bmp\"}\n"
        "{\"t\": 1200, \"frame\": \"SoundFrame\", \"file\": \"/far/away.pcm\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
}

TEST(ReplayRefusals, TheLinesBeforeHaveRunAndTheirOutputStands) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1100, \"watch\": [\"txtTh1\"], \"every\": 100}\n"
        "{\"t\": 1150, \"set\": \"txtTh1\", \"to\": \"41\"}\n"
        "{\"t\": 1250, \"jump\": true}\n"
        "{\"t\": 1300, \"set\": \"txtTh1\", \"to\": \"42\"}\n"
        "{\"t\": 1500, \"set\": \"txtTh1\", \"to\": \"43\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::badScript);
    EXPECT_EQ(outcome.error.line, 3);
    EXPECT_EQ(outcome.output, loadTranscript() + kPower +
                                  "{\"t\": 1100, \"state\": {\"txtTh1\": \"40\"}}\n"
                                  "{\"t\": 1200, \"state\": {\"txtTh1\": \"41\"}}\n");
}

TEST(ReplayRefusals, ALineWithoutAGoodTimeIsReachedWithTheLineBeforeIt) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1150, \"watch\": [\"txtTh1\"], \"every\": 100}\n"
        "rubbish\n"
        "{\"t\": 2000, \"set\": \"txtTh1\", \"to\": \"42\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::badScript);
    EXPECT_EQ(outcome.output, loadTranscript() + kPower);
}

TEST(ReplayRefusals, ABadFirstLineRunsNothing) {
    const ScriptOutcome outcome = runScript("{\"t\": 5000, \"jump\": true}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::badScript);
    EXPECT_THAT(outcome.output, IsEmpty());
}

TEST(ReplayRefusals, ABadLineReachedInsideAnotherLinesYieldLetsThatOneHaveItsWholeEffect) {
    // The way out yields at 4000, when it has closed the first gateway.
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1160, \"click\": \"cmdStart\"}\n"
        "{\"t\": 3000, \"click\": \"cmdExit\"}\n"
        "{\"t\": 3100, \"click\": \"cmdNope\"}\n"
        "{\"t\": 3200, \"frame\": \"ImageFrame\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_THAT(outcome.linesWith("\"t\": 4000"),
                ElementsAre("{\"t\": 4000, \"close\": \"Quorrin Gateway_MotionControl\", \"found\": true}",
                            "{\"t\": 4000, \"close\": \"Quorrin Gateway_Multimedia\", \"found\": true}",
                            "{\"t\": 4000, \"ended\": true}"));
}

TEST(ReplayRefusals, ABadLineReachedInsideATimersYieldEndsTheRunThere) {
    // Twenty seconds of silence: the tick due at 23000 blocks a second, closes a gateway and yields.
    std::string script = "{\"t\": 1100, \"click\": \"cmdStart\"}\n";
    for (int t = 1150; t < 3000; t += 100)
        script += "{\"t\": " + std::to_string(t) + ", \"frame\": \"SensorFrame\"}\n";
    const ScriptOutcome outcome = runScript(script +
                                            "{\"t\": 23500, \"click\": \"cmdNope\"}\n"
                                            "{\"t\": 23600, \"frame\": \"ImageFrame\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::badScript);
    EXPECT_EQ(outcome.error.reason, "unknown control \"cmdNope\"");
    // The navigator's tick, due at 23000 too, comes before the line.
    EXPECT_THAT(outcome.linesWith("\"t\": 24000"),
                ElementsAre("{\"t\": 24000, \"close\": \"Quorrin Gateway_MotionControl\", \"found\": true}",
                            HasSubstr("\"op\": \"SetDriveVelocities\"")));
    EXPECT_THAT(outcome.lines().back(), HasSubstr("SetDriveVelocities"));
}

TEST(ReplayRefusals, AScriptThatCannotBeReadIsRefused) {
    LineReader lines(nullptr);
    MemoryFiles files;
    ReplayRun run(ReplaySetup{files, {"/app", "/app/windows", "/app/tempVoice", "/p"}, {}, ""}, lines,
                  nullptr);
    EXPECT_EQ(run.run(), ReplayEnd::badScript);
    EXPECT_EQ(run.error().reason, "cannot be read");
}

}  // namespace
}  // namespace quorrin
