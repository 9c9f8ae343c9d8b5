// quorrin-remote as a program: alone, and with a real station and a simulated robot.
#include <gmock/gmock.h>

#include <csignal>
#include <cstdio>

#include "processes/process_fixture.h"

namespace quorrin {
namespace {

using testing::HasSubstr;
using testing::Not;

struct RemoteProgram : ProcessTest {
    std::unique_ptr<Process> remote(std::vector<std::string> options, const std::string& outputName) {
        options.insert(options.begin(), bin + "/quorrin-remote");
        return run(options, outputName);
    }
    std::unique_ptr<Process> scripted(const std::string& name, const std::string& script) {
        const std::string path = folder.path() + "/" + name + ".txt";
        files.writeWhole(path, script);
        return remote({"--host", "127.0.0.1", "--script", path}, name + ".out");
    }
    // A wandering session.
    void bringUp() {
        robot = run({bin + "/quorrin-robot", "--headless", "--site", "hall"}, "robot.out");
        ASSERT_TRUE(robot->says("listening", 10));
        theStation = station();
        ASSERT_TRUE(theStation->says("mode=wondering", 30)) << theStation->output();
    }
    std::unique_ptr<Process> robot;
    std::unique_ptr<Process> theStation;
};

TEST_F(RemoteProgram, AnswersHelpAndVersionAndNamesAnUnknownOption) {
    auto help = remote({"--help"}, "help.out");
    EXPECT_EQ(help->ends(10), 0);
    EXPECT_THAT(help->output(), HasSubstr("expect report REGEX within MS"));
    auto version = remote({"--version"}, "version.out");
    EXPECT_EQ(version->ends(10), 0);
    EXPECT_THAT(version->output(), HasSubstr("quorrin-remote "));
    auto wrong = remote({"--hots", "10.0.0.1"}, "wrong.out");
    EXPECT_EQ(wrong->ends(10), 2);
    EXPECT_THAT(wrong->output(), HasSubstr("unknown option --hots"));
}

TEST_F(RemoteProgram, EndsWith2AndTheLineWhenTheScriptCannotBeUsed) {
    auto wrong = scripted("wrong", "connect\ndrive 1 2 3\n");
    EXPECT_EQ(wrong->ends(10), 2);
    EXPECT_THAT(wrong->output(), HasSubstr("wrong.txt: line 2: drive needs seven numbers"));
    EXPECT_THAT(wrong->output(), Not(HasSubstr("connect"))) << "nothing is done before the whole is checked";
    auto missing = remote({"--host", "127.0.0.1", "--script", folder.path() + "/none.txt"}, "missing.out");
    EXPECT_EQ(missing->ends(10), 2);
    EXPECT_THAT(missing->output(), HasSubstr("cannot read the script"));
    auto folders = remote({"--host", "127.0.0.1", "--script", folder.path()}, "folder.out");
    EXPECT_EQ(folders->ends(10), 2);
    auto deep = scripted("deep", "expect report " + std::string(200'000, '(') + " within 5\n");
    EXPECT_EQ(deep->ends(10), 2) << deep->output();
}

TEST_F(RemoteProgram, EndsWith1WhereNoStationIsWithinTenSeconds) {
    auto program = scripted("alone", "connect\nmode\n");
    EXPECT_EQ(program->ends(30), 1);
    EXPECT_THAT(program->output(), HasSubstr("line 1: connect: no command connection: Connection refused"));
}

TEST_F(RemoteProgram, DrivesUnderJoyHearsBothKindsOfReportsAndLetsTheRobotGoAtTheEnd) {
    bringUp();
    auto program = scripted("drive",
                            "connect\n"
                            "expect report ,wondering,0$ within 8000\n"
                            "drive 5000 6000 10000 2000 2000 3400 1\n"
                            "expect report ,JOY,0$ within 2000\n"
                            "# periodic ones\n"
                            "expect report ,JOY,0$ within 8000\n"
                            "expect report ,JOY,0$ within 8000\n");
    EXPECT_EQ(program->ends(60), 0) << program->output();
    EXPECT_TRUE(eventually(
        [this] {
            const std::string said = theStation->output();
            return said.rfind("mode=wondering") > said.rfind("mode=JOY");
        },
        10))
        << "the end of the script lets the robot go";
}

TEST_F(RemoteProgram, EndsWith1WhenAnExpectIsNotMetOrItIsInterrupted) {
    bringUp();
    auto unmet = scripted("unmet", "connect\nmode\nexpect report ,JOY, within 1500\n");
    EXPECT_EQ(unmet->ends(30), 1);
    EXPECT_THAT(unmet->output(), HasSubstr("line 3: expect report ,JOY, within 1500: "));
    auto interrupted = scripted("interrupted", "connect\nwait 60000\n");
    ASSERT_TRUE(interrupted->says("wait 60000", 20)) << interrupted->output();
    interrupted->signal(SIGTERM);
    EXPECT_EQ(interrupted->ends(10), 1);
    EXPECT_THAT(interrupted->output(), HasSubstr("line 2: wait 60000: interrupted"));
}

TEST_F(RemoteProgram, LetsTheRobotGoWhenItIsEndedAndNobodyReadsWhatItSays) {
    bringUp();
    files.writeWhole(folder.path() + "/drive.txt",
                     "connect\ndrive 5000 6000 10000 2000 2000 3400 1\nwait 60000\n");
    // Both outputs go into a pipe that is full.
    auto program =
        run({"python3", "-c",
             "import os, subprocess, sys, fcntl\n"
             "end, out = os.pipe()\n"
             "os.set_blocking(out, False)\n"
             "try:\n"
             "    while True: os.write(out, bytes(4096))\n"
             "except BlockingIOError: pass\n"
             "os.set_blocking(out, True)\n"
             "client = subprocess.Popen(sys.argv[1:], stdout=out, stderr=out)\n"
             "sys.stdin.close()\n"
             "print('client', client.pid, flush=True)\n"
             "print('status', client.wait(), flush=True)\n",
             bin + "/quorrin-remote", "--host", "127.0.0.1", "--script", folder.path() + "/drive.txt"},
            "full.out");
    ASSERT_TRUE(theStation->says("mode=JOY", 30)) << theStation->output();
    int client = 0;
    ASSERT_EQ(std::sscanf(program->output().c_str(), "client %d", &client), 1) << program->output();
    ::kill(client, SIGINT);
    EXPECT_TRUE(program->says("status 1", 10)) << program->output();
    EXPECT_TRUE(eventually(
        [this] {
            const std::string said = theStation->output();
            return said.rfind("mode=wondering") > said.rfind("mode=JOY");
        },
        10));
}

}  // namespace
}  // namespace quorrin
