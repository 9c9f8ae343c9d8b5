// The program as the command line sees it, with real files in a temporary folder.
#include "replay/replay_program.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/host/posix_files.h"
#include "platform/host/temporary_folder.h"

namespace quorrin {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct Outcome {
    int status = 0;
    std::string out;
    std::string err;
};

Outcome run(const std::vector<std::string>& arguments) {
    Outcome outcome;
    std::FILE* out = std::tmpfile();
    std::FILE* err = std::tmpfile();
    outcome.status = replayProgram(arguments, out, err);
    for (auto [file, text] : {std::pair(out, &outcome.out), std::pair(err, &outcome.err)}) {
        std::rewind(file);
        for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) *text += static_cast<char>(c);
        std::fclose(file);
    }
    return outcome;
}

class ReplayProgram : public testing::Test {
  protected:
    std::string script(const std::string& text) {
        EXPECT_TRUE(files.writeWhole(path("script.jsonl"), text));
        return path("script.jsonl");
    }
    std::string path(const std::string& name) const { return folder.path() + "/" + name; }

    TemporaryFolder folder;
    PosixFiles files;
};

TEST_F(ReplayProgram, HelpAndVersionEndWell) {
    EXPECT_EQ(run({"--help"}).status, 0);
    EXPECT_THAT(run({"--help"}).out, HasSubstr("usage: quorrin-replay"));
    EXPECT_THAT(run({"--version"}).out, StartsWith("quorrin-replay "));
}

TEST_F(ReplayProgram, AWrongCommandLineIsToldInOneLine) {
    const Outcome outcome = run({"--quick"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "quorrin-replay: unknown option --quick (--help tells the rest)\n");
    EXPECT_EQ(outcome.out, "");
}

TEST_F(ReplayProgram, AMissingScriptIsNamed) {
    const Outcome outcome = run({path("none.jsonl")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err, HasSubstr("none.jsonl: cannot be opened"));
}

TEST_F(ReplayProgram, FillsTheApplicationFolderAndItsInnerFolders) {
    const Outcome outcome = run({"--app", path("app"), script("{\"t\": 0, \"answer\": \"no\"}\n")});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_TRUE(files.folderExists(path("app/windows")));
    EXPECT_TRUE(files.folderExists(path("app/tempVoice")));
    EXPECT_TRUE(files.folderExists(path("app/catchdata")));
    EXPECT_TRUE(files.fileExists(path("app/Quorrinsdk.ini")));
}

TEST_F(ReplayProgram, TheLoginWritesTheProfileFilesOfTheGateways) {
    const Outcome outcome =
        run({"--app", path("app"),
             script("{\"t\": 0, \"login\": true}\n{\"t\": 150, \"click\": \"frmLogin.cmdOK\"}\n")});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(files.read(path("app/windows/gateway_mot.ini")).value_or(""), HasSubstr("WiFiPort=10001"));
    EXPECT_THAT(files.read(path("app/windows/gateway_ti.ini")).value_or(""), HasSubstr("WiFiPort=10002"));
}

TEST_F(ReplayProgram, ABrokenScriptNamesLineAndReason) {
    const Outcome outcome =
        run({"--app", path("app"), script("# one\n{\"t\": 5, \"click\": \"cmdNope\"}\n")});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err, HasSubstr("script.jsonl: line 2: unknown control \"cmdNope\"\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\"start\": \"QuorrinGatewayTI\""));
}

TEST_F(ReplayProgram, AProgramErrorIsStatusThree) {
    const Outcome outcome =
        run({"--app", path("app"),
             script("{\"t\": 1200, \"frame\": \"MotorFrame\", \"EncoderSpeedRight\": -1}\n"
                    "{\"t\": 1210, \"click\": \"cmdStart\"}\n"
                    "{\"t\": 1900, \"answer\": \"no\"}\n")});
    EXPECT_EQ(outcome.status, 3) << outcome.out;
    EXPECT_THAT(outcome.out, HasSubstr("\"fatal\": "));
}

TEST_F(ReplayProgram, NothingOfATemporaryApplicationFolderStays) {
    ASSERT_TRUE(files.createFolder(path("temporary")));
    const char* before = std::getenv("TMPDIR");
    const std::string restored = before == nullptr ? "" : before;
    ::setenv("TMPDIR", path("temporary").c_str(), 1);
    const Outcome outcome = run({script("{\"t\": 1000, \"answer\": \"no\"}\n")});
    if (before == nullptr) {
        ::unsetenv("TMPDIR");
    } else {
        ::setenv("TMPDIR", restored.c_str(), 1);
    }
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(::rmdir(path("temporary").c_str()), 0) << "it is not empty";
}

// Its name differs from run to run, and the output must not.
TEST_F(ReplayProgram, ATemporaryApplicationFolderHasNoNameInTheOutput) {
    const std::string watch =
        "{\"t\": 1000, \"watch\": [\"sdkIniPath\", \"gatewayTiIniPath\", \"txtMusicName\"], \"every\": 9}\n";
    const Outcome outcome = run({script(watch)});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(
        outcome.out,
        HasSubstr("{\"t\": 1000, \"state\": {\"sdkIniPath\": \"Quorrinsdk.ini\", \"gatewayTiIniPath\": "
                  "\"windows/gateway_ti.ini\", \"txtMusicName\": \"happy8k.wav\"}}\n"));
    EXPECT_EQ(run({script(watch)}).out, outcome.out);
}

TEST_F(ReplayProgram, AnApplicationFolderThatWasGivenKeepsItsName) {
    const std::string watch = "{\"t\": 1000, \"watch\": [\"sdkIniPath\"], \"every\": 9}\n";
    EXPECT_THAT(run({"--app", path("app"), script(watch)}).out,
                HasSubstr("\"sdkIniPath\": \"" + path("app/Quorrinsdk.ini") + "\""));
}

TEST_F(ReplayProgram, ReportsOfASimulatedRobotAndPrintsNothingElse) {
    const Outcome outcome = run({"--robot", QUORRIN_SOURCE_DIR "/share/sites/hall.json", "--seed", "7",
                                 "--minutes", "0.5", "--report"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, testing::MatchesRegex("\\{\"distance\": [^\n]*, \"speedup\": [^\n]*\\}\n"));
}

TEST_F(ReplayProgram, ASiteOrScenarioThatCannotBeUsedIsTold) {
    EXPECT_EQ(run({"--robot", "moon", "--minutes", "1", "--report"}).status, 2);
    const Outcome outcome = run({"--robot", QUORRIN_SOURCE_DIR "/share/sites/hall.json", "--scenario",
                                 script("{\"t\": 1, \"fault\": \"rain\"}\n"), "--minutes", "1", "--report"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err, HasSubstr("rain"));
}

}  // namespace
}  // namespace quorrin
