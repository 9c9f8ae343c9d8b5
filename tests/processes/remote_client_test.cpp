// Clients that are built of nothing of the station's code, against a real station with a simulated robot: the
// transcripts of the protocol's document over real sockets, the example client, and what the flight recorder
// wrote of it.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <map>
#include <nlohmann/json.hpp>

#include "processes/process_fixture.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

struct RemoteClient : ProcessTest {
    // A station whose robot wanders in a large hall, with nobody in it.
    void bringUp() {
        robot = run({bin + "/quorrin-robot", "--headless", "--site", "hall", "--truth", truth}, "robot.out");
        ASSERT_TRUE(robot->says("listening", 10)) << robot->output();
        theStation = station();
        ASSERT_TRUE(theStation->says("mode=wondering", 40)) << theStation->output();
    }
    void expectHeld(const std::string& transcripts, const std::vector<std::string>& options = {}) {
        bringUp();
        if (HasFatalFailure()) return;
        std::vector<std::string> command = {"python3",
                                            "-B",
                                            source + "/tests/processes/play_transcripts.py",
                                            "--truth",
                                            truth,
                                            "--received",
                                            received,
                                            source + "/" + transcripts};
        command.insert(command.end(), options.begin(), options.end());
        auto player = run(command, "player.out");
        EXPECT_EQ(player->ends(100), 0) << player->output();
        EXPECT_THAT(player->output(), HasSubstr("held: "));
    }
    void endStation() {
        theStation->signal(SIGTERM);
        ASSERT_EQ(theStation->ends(10), 0) << theStation->output();
    }
    // The reports on each connection, in the order of connecting: as a replay sends them.
    std::vector<std::string> replayedReports() {
        auto replay =
            run({bin + "/quorrin-replay", folder.path() + "/s/quorrin/flight-1.jsonl"}, "replay.out");
        EXPECT_EQ(replay->ends(60), 0);
        std::vector<std::string> all;
        std::map<int, std::size_t> open;
        std::istringstream lines(replay->output());
        for (std::string text; std::getline(lines, text);) {
            const auto line = nlohmann::json::parse(text, nullptr, false);
            if (line.is_discarded()) {
                ADD_FAILURE() << text;
                return all;
            }
            if (line.value("accept", "") == "wskSensor") {
                open[line["element"]] = all.size();
                all.emplace_back();
            }
            if (line.value("send", "") == "wskSensor")
                all.at(open.at(line["element"])) += bytesOf(line["hex"].get<std::string>());
        }
        return all;
    }
    // The same as the client got them.
    std::vector<std::string> receivedReports() const {
        std::vector<std::string> all;
        std::istringstream lines(fileText(received));
        for (std::string text; std::getline(lines, text);)
            all.push_back(nlohmann::json::parse(text).get<std::string>());
        return all;
    }
    static std::string bytesOf(const std::string& hex) {
        std::string bytes;
        for (std::size_t at = 0; at + 1 < hex.size(); at += 2)
            bytes.push_back(static_cast<char>(std::stoi(hex.substr(at, 2), nullptr, 16)));
        return bytes;
    }
    bool moves(const std::function<bool(double speed)>& asWanted) const {
        return eventually(
            [&] {
                const std::string text = fileText(truth);
                const std::size_t end = text.rfind('\n');
                if (end == std::string::npos) return false;
                const std::size_t begin = text.rfind('\n', end - 1) + 1;
                return asWanted(nlohmann::json::parse(text.substr(begin, end - begin))["v"].get<double>());
            },
            20);
    }

    const std::string truth = folder.path() + "/truth.jsonl";
    const std::string received = folder.path() + "/received.jsonl";
    std::unique_ptr<Process> robot;
    std::unique_ptr<Process> theStation;
};

TEST_F(RemoteClient, TheDocumentsConversationsHoldOverRealSockets) {
    expectHeld("docs/remote-protocol.md");
}

TEST_F(RemoteClient, TheDocumentsLongConversationsHoldOverRealSockets) {
    expectHeld("docs/remote-protocol.md", {"--long"});
}

TEST_F(RemoteClient, TheConnectionsTranscriptsHoldOverRealSockets) {
    expectHeld("tests/remote/transcripts/connections.txt");
}

TEST_F(RemoteClient, TheCommandsTranscriptsHoldOverRealSocketsInRandomPieces) {
    expectHeld("tests/remote/transcripts/commands.txt", {"--pieces", "7"});
}

TEST_F(RemoteClient, WhatTheFlightRecorderWroteReplaysToTheReportsThatTheClientsGot) {
    expectHeld("tests/remote/transcripts/reports.txt");
    endStation();
    const auto got = receivedReports();
    EXPECT_GT(got.size(), 8U);
    EXPECT_EQ(replayedReports(), got);
}

TEST_F(RemoteClient, APlayerFindsWhatDoesNotHold) {
    bringUp();
    files.writeWhole(
        folder.path() + "/planted.txt",
        "# planted\nC 7060 connects\nC 7070 connects\n"
        "C 7060: 5E 02 \"5000,10000,10000,2000,2000,2650,1,9\" 5E 0D\nS 7070: \"0,0,0,4,JOY,1\"\n");
    auto player = run({"python3", "-B", source + "/tests/processes/play_transcripts.py", "--truth", truth,
                       folder.path() + "/planted.txt"},
                      "player.out");
    EXPECT_EQ(player->ends(60), 1);
    EXPECT_THAT(player->output(), HasSubstr("the station says b'0,0,0,4,JOY,0'"));
}

TEST_F(RemoteClient, TheExampleClientDrivesStandsAndLetsGo) {
    bringUp();
    const std::string pipe = folder.path() + "/words";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    auto client =
        run({"sh", "-c", "exec python3 -B \"$0\" < \"$1\"", source + "/examples/remote_client.py", pipe},
            "client.out");
    const int words = ::open(pipe.c_str(), O_WRONLY | O_CLOEXEC);
    const auto say = [words](const std::string& line) {
        EXPECT_EQ(::write(words, line.data(), line.size()), static_cast<ssize_t>(line.size()));
    };
    say("drive 5000 6000 10000\n");
    EXPECT_TRUE(client->says("0,0,0,4,JOY,0", 20)) << client->output();
    EXPECT_TRUE(moves([](double speed) { return speed > 0.05; }));
    say("stand\n");
    EXPECT_TRUE(moves([](double speed) { return std::abs(speed) < 0.005; }));
    say("clos\n");
    EXPECT_TRUE(client->says("0,0,0,4,wondering,0", 20)) << client->output();
    EXPECT_TRUE(theStation->says("remote=1", 5));
    say("quit\n");
    EXPECT_EQ(client->ends(10), 0) << client->output();
    ::close(words);
    EXPECT_TRUE(eventually(
        [this] {
            const std::string text = theStation->output();
            return text.find("remote=0", text.rfind("remote=1")) != std::string::npos;
        },
        10));
}

}  // namespace
}  // namespace quorrin
