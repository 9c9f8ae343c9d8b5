// ./run, with programs that stand in for robot and station, and once with the real ones.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "support/temp_folder.h"
#include "tree/command.h"
#include "tree/source_text.h"

namespace quorrin {
namespace {

using testing::HasSubstr;
using testing::Not;
using tree::Outcome;
using tree::runCommand;

constexpr int kCannotStart = 2;

class RunScript : public ::testing::Test {
  protected:
    // A stand-in: a shell script under a program's name.
    void program(const std::string& name, const std::string& script) {
        std::filesystem::create_directories(folder.path() + "/bin");
        const std::string path = folder.path() + "/bin/" + name;
        std::ofstream(path) << "#!/bin/bash\n" << script << "\n";
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    void listeningRobot() {
        program("quorrin-robot",
                "echo $$ > '" + folder.path() + "/robot.pid'; exec python3 -c '" + kListen + "'");
    }
    void storeAddress(const std::string& address, const std::string& port) {
        const std::string config = folder.path() + "/config/quorrin";
        std::filesystem::create_directories(config);
        std::ofstream(config + "/gateway_ti.ini") << "[wifi]\r\nwifiip = " << address << "\r\n";
        std::ofstream(config + "/gateway_mot.ini") << "; by hand\n[WiFi]\nWiFiPort=\"" << port << "\"\n";
    }
    std::string environment(const std::string& bin) const {
        std::string words = "env -u DISPLAY -u WAYLAND_DISPLAY QUORRIN_BIN='" + bin + "'";
        for (const char* role : {"DATA", "CONFIG", "STATE", "CACHE"}) {
            std::string low(role);
            for (char& letter : low) letter = static_cast<char>(std::tolower(letter));
            words += std::string(" XDG_") + role + "_HOME='" + folder.path() + "/" + low + "'";
        }
        return words + " ";
    }
    // Runs ./run with the stand-ins; `before` is shell to be run first.
    Outcome run(const std::string& arguments, const std::string& before = "true") const {
        return runCommand(before + "; " + environment(folder.path() + "/bin") + "./run " + arguments);
    }
    static int exitStatus(const Outcome& outcome) { return outcome.status / 256; }
    // Processes that were started for this test and still live.
    std::string leftBehind() const {
        return runCommand("sleep 0.2; grep -l 'XDG_DATA_HOME=" + folder.path() +
                          "/' /proc/[0-9]*/environ 2> /dev/null | grep -v /self/ || true")
            .output;
    }

    const std::string kListen =
        "import socket, time; s = socket.socket(); s.bind((\"127.127.0.1\", 10001)); s.listen(); "
        "time.sleep(60)";
    TempFolder folder;
};

TEST_F(RunScript, RefusesAnOptionThatItDoesNotKnow) {
    const Outcome outcome = run("--sight office");
    EXPECT_EQ(exitStatus(outcome), kCannotStart);
    EXPECT_THAT(outcome.output, HasSubstr("unknown option --sight"));
}

TEST_F(RunScript, RefusesASiteWithoutAName) {
    const Outcome outcome = run("--site");
    EXPECT_EQ(exitStatus(outcome), kCannotStart);
    EXPECT_THAT(outcome.output, HasSubstr("--site needs a name or a file"));
}

TEST_F(RunScript, StartsNoRobotWhereTheStoredAddressIsARealOnes) {
    storeAddress("192.168.0.5", "10007");
    program("quorrin-robot", "touch '" + folder.path() + "/started'");
    program("quorrin-station-headless", "echo station");
    const Outcome outcome = run("");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("192.168.0.5, port 10007"));
    EXPECT_THAT(outcome.output, HasSubstr("station\n"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "/started"));
}

TEST_F(RunScript, RefusesASiteWhereTheStoredAddressIsARealOnes) {
    storeAddress("192.168.0.5", "10007");
    const Outcome outcome = run("--site hall");
    EXPECT_EQ(exitStatus(outcome), kCannotStart);
    EXPECT_THAT(outcome.output, HasSubstr("--site is for the simulated robot"));
}

TEST_F(RunScript, TellsWhyTheSimulatedRobotDidNotStart) {
    program("quorrin-robot", "echo 'no site of that name' >&2; exit 2");
    program("quorrin-station-headless", "echo station");
    const Outcome outcome = run("--site nowhere");
    EXPECT_EQ(exitStatus(outcome), kCannotStart);
    EXPECT_THAT(outcome.output, HasSubstr("no site of that name"));
    EXPECT_THAT(outcome.output, Not(HasSubstr("station\n")));
}

TEST_F(RunScript, UsesARobotThatAlreadyListens) {
    program("quorrin-robot", "touch '" + folder.path() + "/started'");
    program("quorrin-station-headless", "echo station");
    const Outcome outcome =
        run("", "python3 -c '" + kListen +
                    "' & trap \"kill $!\" EXIT; until ss -Hltn | grep -q :10001; do sleep 0.05; done");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("already listens at 127.127.0.1, port 10001"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "/started"));
}

TEST_F(RunScript, EndsWithTheStationsStatusAndEndsTheRobot) {
    listeningRobot();
    program("quorrin-station-headless", "exit 3");
    const Outcome outcome = run("--headless");
    EXPECT_EQ(exitStatus(outcome), 3) << outcome.output;
    ASSERT_TRUE(std::filesystem::exists(folder.path() + "/robot.pid"));
    EXPECT_EQ(leftBehind(), "");
}

TEST_F(RunScript, EndsTheRobotWhenTheStationIsKilled) {
    listeningRobot();
    program("quorrin-station-headless", "kill -KILL $$");
    const Outcome outcome = run("--headless");
    EXPECT_EQ(exitStatus(outcome), 128 + 9) << outcome.output;
    EXPECT_EQ(leftBehind(), "");
}

TEST_F(RunScript, EndsRobotAndStationWhenItIsKilledItself) {
    listeningRobot();
    program("quorrin-station-headless", "touch '" + folder.path() + "/up'; exec sleep 60");
    const Outcome outcome =
        runCommand(environment(folder.path() + "/bin") + "./run & until [ -e '" + folder.path() +
                   "/up' ]; do sleep 0.05; done; sleep 0.2; kill -KILL $!; wait $! || true");
    EXPECT_EQ(leftBehind(), "") << outcome.output;
}

TEST_F(RunScript, BringsUpARobotThatWandersWithin20SecondsAndLeavesNothingBehindOnCtrlC) {
    const std::string output = folder.path() + "/run.out";
    const Outcome outcome =
        runCommand("cd /; " + environment(QUORRIN_BIN_DIR) + "'" QUORRIN_SOURCE_DIR "/run' --headless > '" +
                   output + "' 2>&1 & for i in $(seq 400); do grep -q mode=wondering '" + output +
                   "' && break; sleep 0.1; done; kill -INT $!; wait $!");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    std::ifstream file(output);
    double wanderedAt_s = -1;
    for (std::string line; std::getline(file, line) && wanderedAt_s < 0;) {
        if (line.find("mode=wondering") != std::string::npos) wanderedAt_s = std::stod(line.substr(2));
    }
    EXPECT_GT(wanderedAt_s, 0);
    EXPECT_LE(wanderedAt_s, 20);
    EXPECT_EQ(leftBehind(), "");
}

}  // namespace
}  // namespace quorrin
